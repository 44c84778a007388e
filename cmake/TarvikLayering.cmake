# Which folder may include which. The interface's shell (the main window and its
# controllers) sits on top: nothing else includes it. The base (pane frame,
# preferences, notification centre, alert box, how pictures are drawn), the controls and the languages
# are the floor every other interface folder stands on, so they include only
# each other. The core includes no interface and no command.
#
# Runs when CMake configures the tree and again as a test, so an include added
# after the last configure still fails `make test`:
#   cmake -DTARVIK_ROOT=<source dir> -P cmake/TarvikLayering.cmake

function(tarvik_check_layering root)
  file(GLOB_RECURSE sources RELATIVE ${root} ${root}/src/*.h ${root}/src/*.cpp)
  set(faults "")
  foreach(f IN LISTS sources)
    file(STRINGS ${root}/${f} includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(line IN LISTS includes)
      string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*$" "\\1" target "${line}")
      set(bad FALSE)
      if(f MATCHES "^src/core/" AND target MATCHES "^(ui|cli)/")
        set(bad TRUE)
      elseif(f MATCHES "^src/ui/" AND NOT f MATCHES "^src/ui/shell/" AND target MATCHES "^ui/shell/")
        set(bad TRUE)
      elseif(f MATCHES "^src/ui/(base|controls|l10n)/" AND target MATCHES "^ui/"
             AND NOT target MATCHES "^ui/(base|controls|l10n)/")
        set(bad TRUE)
      endif()
      if(bad)
        list(APPEND faults "  ${f} includes ${target}")
      endif()
    endforeach()
  endforeach()
  if(faults)
    list(JOIN faults "\n" text)
    message(FATAL_ERROR "An include climbs against the layers:\n${text}")
  endif()
endfunction()

if(CMAKE_SCRIPT_MODE_FILE AND TARVIK_ROOT)
  tarvik_check_layering(${TARVIK_ROOT})
endif()
