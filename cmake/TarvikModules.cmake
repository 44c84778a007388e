# Each subsystem folder is a library of its own so that one subsystem's build
# never waits on (or breaks because of) another's. A folder declares itself with
# a three-line CMakeLists.txt calling one of the functions below.

include_guard(GLOBAL)

# Adds every sub-folder of DIR that holds a CMakeLists.txt, depth first.
function(tarvik_add_module_dirs dir)
  file(GLOB_RECURSE lists RELATIVE ${dir} CONFIGURE_DEPENDS ${dir}/*/CMakeLists.txt)
  list(SORT lists)
  foreach(l IN LISTS lists)
    get_filename_component(sub ${l} DIRECTORY)
    add_subdirectory(${dir}/${sub})
  endforeach()
endfunction()

function(_tarvik_sources out)
  file(GLOB srcs CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  set(${out} ${srcs} PARENT_SCOPE)
endfunction()

# tarvik_core_module(NAME [DEPENDS targets...]) -> static library tarvik_core_NAME
# built from the .cpp files of the current folder. No Qt.
function(tarvik_core_module name)
  cmake_parse_arguments(M "" "" "DEPENDS" ${ARGN})
  _tarvik_sources(srcs)
  add_library(tarvik_core_${name} STATIC ${srcs})
  target_include_directories(tarvik_core_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tarvik_core_${name} PUBLIC ${M_DEPENDS})
  set_property(GLOBAL APPEND PROPERTY TARVIK_CORE_MODULES tarvik_core_${name})
endfunction()

# tarvik_ui_module(NAME [DEPENDS targets...] [QT components...]) -> tarvik_ui_NAME
function(tarvik_ui_module name)
  cmake_parse_arguments(M "" "" "DEPENDS;QT" ${ARGN})
  _tarvik_sources(srcs)
  add_library(tarvik_ui_${name} STATIC ${srcs})
  set_target_properties(tarvik_ui_${name} PROPERTIES AUTOMOC ON)
  target_include_directories(tarvik_ui_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  set(qtlibs Qt6::Core Qt6::Gui Qt6::Widgets)
  foreach(c IN LISTS M_QT)
    list(APPEND qtlibs Qt6::${c})
  endforeach()
  target_link_libraries(tarvik_ui_${name} PUBLIC ${qtlibs} ${M_DEPENDS})
  set_property(GLOBAL APPEND PROPERTY TARVIK_UI_MODULES tarvik_ui_${name})
endfunction()

# tarvik_core_test(NAME LIBS targets...) -> GoogleTest program test_core_NAME from
# every .cpp of the current folder.
function(tarvik_core_test name)
  cmake_parse_arguments(T "" "TIMEOUT" "LIBS" ${ARGN})
  _tarvik_sources(srcs)
  add_executable(test_core_${name} ${srcs})
  target_link_libraries(test_core_${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(test_core_${name} PRIVATE
    TARVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}" TARVIK_BINARY_DIR="${PROJECT_BINARY_DIR}")
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 300)
  endif()
  gtest_discover_tests(test_core_${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT ${T_TIMEOUT} ENVIRONMENT "TARVIK_FFMPEG=ffmpeg")
endfunction()

# tarvik_ui_test(SOURCE file LIBS targets... [DISPLAY] [SERIAL]) -> a Qt Test program per
# file. Without DISPLAY the test runs on the offscreen platform; with it, on the
# X server that `make test` provides (needed for OpenGL and the web engine).
function(tarvik_ui_test src)
  if(NOT TARVIK_BUILD_UI)
    return()
  endif()
  cmake_parse_arguments(T "DISPLAY;SERIAL" "TIMEOUT" "LIBS" ${ARGN})
  get_filename_component(name ${src} NAME_WE)
  add_executable(${name} ${src})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE ${T_LIBS} Qt6::Test)
  target_compile_definitions(${name} PRIVATE
    TARVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}" TARVIK_BINARY_DIR="${PROJECT_BINARY_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  # Each test gets a home of its own, so preferences and the Documents folder
  # never leak between tests or into the developer's account.
  set(home ${PROJECT_BINARY_DIR}/test-home/${name})
  set(env "QTWEBENGINE_DISABLE_SANDBOX=1" "QTWEBENGINE_CHROMIUM_FLAGS=--disable-gpu --no-sandbox"
          "HOME=${home}" "XDG_CONFIG_HOME=${home}/.config" "XDG_RUNTIME_DIR=${home}/run")
  if(NOT T_DISPLAY)
    list(APPEND env "QT_QPA_PLATFORM=offscreen")
  endif()
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 300)
  endif()
  # A Qt test that skips a case shows as skipped, with Qt's reason in its output.
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${env}" TIMEOUT ${T_TIMEOUT}
                       SKIP_REGULAR_EXPRESSION "SKIP   : ")
  # Qt wants the runtime folder to exist and be private before it starts.
  file(MAKE_DIRECTORY ${home}/run)
  file(CHMOD ${home}/run DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  # Tests that measure playback in real time run alone, so that another test
  # hogging the two cores cannot make a clip end before the test looks.
  if(T_SERIAL)
    set_tests_properties(${name} PROPERTIES RUN_SERIAL TRUE)
  endif()
endfunction()
