# SPDX-License-Identifier: MIT
# project_run(<name> [DISPLAY] [TIMEOUT <seconds>] COMMAND ...)
#
# Registers a command with CTest. It runs on the `offscreen` platform, or, with
# DISPLAY, inside a virtual X server with a window manager and a compositor.
# Settings, data and sockets of a run go to folders below the build folder.
function(project_run name)
  cmake_parse_arguments(ARG "DISPLAY" "TIMEOUT" "COMMAND" ${ARGN})
  if(ARG_DISPLAY)
    list(PREPEND ARG_COMMAND ${CMAKE_SOURCE_DIR}/scripts/with-display.sh)
    set(platform xcb)
  else()
    set(platform offscreen)
  endif()
  add_test(NAME ${name} COMMAND ${ARG_COMMAND})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  set(home ${CMAKE_BINARY_DIR}/test-home/${name})
  file(MAKE_DIRECTORY ${home})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=${platform};HOME=${home};XDG_CONFIG_HOME=${home};XDG_DATA_HOME=${home};LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# project_test(<subject> SOURCES ... LINK ... [DISPLAY] [TIMEOUT <seconds>])
#
# Makes the Qt Test program tst_<subject> and registers it as <subject>.
function(project_test subject)
  cmake_parse_arguments(ARG "DISPLAY" "TIMEOUT" "SOURCES;LINK" ${ARGN})
  set(program tst_${subject})
  add_executable(${program} ${ARG_SOURCES})
  target_link_libraries(${program} PRIVATE ${ARG_LINK} Qt::Test)
  set(options)
  if(ARG_DISPLAY)
    list(APPEND options DISPLAY)
  endif()
  if(ARG_TIMEOUT)
    list(APPEND options TIMEOUT ${ARG_TIMEOUT})
  endif()
  project_run(${subject} ${options} COMMAND $<TARGET_FILE:${program}>)
endfunction()
