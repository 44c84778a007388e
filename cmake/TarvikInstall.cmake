# `cmake --install` (and `make install PREFIX=...`): the two programs, the
# factory settings file, the translations, and what a desktop needs to list the
# viewer (desktop entry, AppStream metainfo, icons). Programs look for their
# data at ../share/tarvik from their own folder, so any prefix works.

include(GNUInstallDirs)
set(TARVIK_APP_ID org.tarvik.Viewer)
set(TARVIK_DATADIR ${CMAKE_INSTALL_DATADIR}/tarvik)

install(TARGETS tarvik RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/resources/settings/default_Q260.cfg DESTINATION ${TARVIK_DATADIR}/settings)

if(TARVIK_BUILD_UI)
  install(TARGETS tarvik-viewer RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  file(GLOB ts_files ${PROJECT_SOURCE_DIR}/resources/translations/*.ts)
  foreach(ts IN LISTS ts_files)
    get_filename_component(base ${ts} NAME_WE)
    install(FILES ${PROJECT_BINARY_DIR}/resources/${base}.qm DESTINATION ${TARVIK_DATADIR}/translations)
  endforeach()

  set(desktop ${PROJECT_SOURCE_DIR}/resources/desktop)
  configure_file(${desktop}/${TARVIK_APP_ID}.metainfo.xml ${PROJECT_BINARY_DIR}/${TARVIK_APP_ID}.metainfo.xml @ONLY)
  install(FILES ${desktop}/${TARVIK_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${PROJECT_BINARY_DIR}/${TARVIK_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

  set(icon_svg ${PROJECT_SOURCE_DIR}/resources/images/tarvik_viewer_icon.svg)
  set(icon_sizes 16 24 32 48 64 128 256 512)
  set(icon_dir ${PROJECT_BINARY_DIR}/icons)
  add_executable(tarvik-iconrender ${PROJECT_SOURCE_DIR}/tools/iconrender/main.cpp)
  target_link_libraries(tarvik-iconrender PRIVATE Qt6::Gui Qt6::Svg)
  add_custom_command(OUTPUT ${icon_dir}/256x256/apps/${TARVIK_APP_ID}.png
    COMMAND tarvik-iconrender ${icon_svg} ${icon_dir} ${TARVIK_APP_ID} ${icon_sizes}
    DEPENDS tarvik-iconrender ${icon_svg}
    COMMENT "Rendering the application icon")
  add_custom_target(app_icons ALL DEPENDS ${icon_dir}/256x256/apps/${TARVIK_APP_ID}.png)
  install(FILES ${icon_svg} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
          RENAME ${TARVIK_APP_ID}.svg)
  foreach(n IN LISTS icon_sizes)
    install(FILES ${icon_dir}/${n}x${n}/apps/${TARVIK_APP_ID}.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${n}x${n}/apps)
  endforeach()
endif()

# Manual pages, with the version filled in, compressed as Debian has them.
set(man_pages tarvik)
if(TARVIK_BUILD_UI)
  list(APPEND man_pages tarvik-viewer)
endif()
set(VERSION ${PROJECT_VERSION})
foreach(page IN LISTS man_pages)
  configure_file(${PROJECT_SOURCE_DIR}/resources/man/${page}.1 ${PROJECT_BINARY_DIR}/man/${page}.1 @ONLY)
  add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/man/${page}.1.gz
    COMMAND gzip -9nf -k ${PROJECT_BINARY_DIR}/man/${page}.1
    DEPENDS ${PROJECT_BINARY_DIR}/man/${page}.1)
  list(APPEND man_gz ${PROJECT_BINARY_DIR}/man/${page}.1.gz)
endforeach()
add_custom_target(man_pages ALL DEPENDS ${man_gz})
install(FILES ${man_gz} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
