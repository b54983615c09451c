# SPDX-License-Identifier: MIT
# Flags that every target of the project shares: link `project_options`.
add_library(project_options INTERFACE)
target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(project_options INTERFACE -Wall -Wextra -Wshadow -Wpedantic
  # Qt's own qCDebug() is such a macro.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
target_compile_definitions(project_options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

if(TUTORIAL_WERROR)
  target_compile_options(project_options INTERFACE -Werror)
endif()

if(TUTORIAL_SANITIZE)
  set(checks address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    string(APPEND checks ,fuzzer-no-link) # what the fuzzers steer by
  endif()
  # One runtime for the whole process, so the flags go to every target at once.
  add_compile_options(-fsanitize=${checks} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${checks})
  add_compile_definitions(TUTORIAL_SANITIZED)
  add_library(keep_modules OBJECT ${CMAKE_CURRENT_LIST_DIR}/keepmodules.cpp)
  link_libraries($<TARGET_OBJECTS:keep_modules>)
endif()

# project_library(<name> SOURCES ... [LINK ...]): a static library of one room.
# What it links is public, so that a room sees only the rooms below it.
function(project_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC project_options ${ARG_LINK})
endfunction()
