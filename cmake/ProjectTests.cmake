# SPDX-License-Identifier: MIT
# Six tests that mostly wait, for windows or for silence, share a processor; one
# that computes has it for itself. So run `ctest --parallel` with six times the
# number of processors.
set(processor 6)

# `unit_tests` and `screen_tests` build what the tests of each label need.
add_custom_target(unit_tests)
add_custom_target(screen_tests)

# project_run(<name> [DISPLAY] [WAITS] [MEASURES] [TIMEOUT <seconds>] [LABEL <label>]
#   COMMAND ...)
#
# Registers a command with CTest. It runs on the `offscreen` platform, or, with
# DISPLAY, inside a virtual X server with a window manager and a compositor, in a
# home of its own below the build folder. The label is `unit`, or `screen` with
# DISPLAY. What has DISPLAY or WAITS mostly waits, and begins before the others;
# what MEASURES load does not share its processor.
function(project_run name)
  cmake_parse_arguments(ARG "DISPLAY;WAITS;MEASURES" "TIMEOUT;LABEL" "COMMAND" ${ARGN})
  set(slots ${processor})
  set(cost 0)
  if((ARG_DISPLAY OR ARG_WAITS) AND NOT ARG_MEASURES)
    set(slots 1)
    set(cost 1)
  endif()
  if(ARG_DISPLAY)
    list(PREPEND ARG_COMMAND ${CMAKE_SOURCE_DIR}/scripts/with-display.sh)
    set(platform xcb)
    set(label screen)
  else()
    set(platform offscreen)
    set(label unit)
  endif()
  if(ARG_LABEL)
    set(label ${ARG_LABEL})
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/scripts/with-home.sh
    ${CMAKE_BINARY_DIR}/test-home/${name} ${ARG_COMMAND})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    LABELS ${label}
    PROCESSORS ${slots}
    COST ${cost}
    ENVIRONMENT "QT_QPA_PLATFORM=${platform};LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# project_test(<subject> SOURCES ... LINK ... [DISPLAY] [WAITS] [MEASURES]
#   [TIMEOUT <seconds>])
#
# Makes the Qt Test program tst_<subject> and registers it as <subject>.
function(project_test subject)
  cmake_parse_arguments(ARG "DISPLAY;WAITS;MEASURES" "TIMEOUT" "SOURCES;LINK" ${ARGN})
  set(program tst_${subject})
  add_executable(${program} ${ARG_SOURCES})
  target_link_libraries(${program} PRIVATE ${ARG_LINK} Qt::Test)
  # The checks' macros cost the optimiser much, and gain nothing.
  target_compile_options(${program} PRIVATE -O1)
  set(options)
  foreach(option DISPLAY WAITS MEASURES)
    if(ARG_${option})
      list(APPEND options ${option})
    endif()
  endforeach()
  if(ARG_TIMEOUT)
    list(APPEND options TIMEOUT ${ARG_TIMEOUT})
  endif()
  project_run(${subject} ${options} COMMAND $<TARGET_FILE:${program}>)
  if(ARG_DISPLAY)
    add_dependencies(screen_tests ${program})
  else()
    add_dependencies(unit_tests ${program})
  endif()
endfunction()
