# SPDX-License-Identifier: MIT
# What makes builds faster and changes nothing of what is built.
option(TUTORIAL_PCH "Precompile Qt's headers" ON)

find_program(CCACHE ccache)
mark_as_advanced(CCACHE)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  # It has to be told that times in precompiled headers do not matter.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()
if(TUTORIAL_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  add_compile_options(-fpch-preprocess)
elseif(TUTORIAL_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()

find_program(MOLD mold)
mark_as_advanced(MOLD)
if(MOLD)
  add_link_options(-fuse-ld=mold)
endif()

# project_qt_modules(<variable> <library> ...): the Qt modules that the libraries
# bring, their own and those of what they link.
function(project_qt_modules variable)
  set(seen)
  set(modules)
  set(queue ${ARGN})
  while(queue)
    list(POP_FRONT queue library)
    if(library IN_LIST seen)
      continue()
    endif()
    list(APPEND seen ${library})
    if(library MATCHES "^Qt[56]?::([A-Za-z]+)$")
      list(APPEND modules ${CMAKE_MATCH_1})
    elseif(TARGET ${library})
      get_target_property(linked ${library} INTERFACE_LINK_LIBRARIES)
      if(linked)
        list(APPEND queue ${linked})
      endif()
    endif()
  endwhile()
  set(${variable} ${modules} PARENT_SCOPE)
endfunction()

# project_precompile(<target>): lets the target use the headers of the modules
# that it sees, compiled once for all such targets.
function(project_precompile target)
  get_target_property(linked ${target} LINK_LIBRARIES)
  project_qt_modules(seen ${linked})
  if(NOT seen)
    return()
  endif()
  # A precompiled header is refused where a macro is missing that it was made
  # with, or is there that it asked for. Each module brings such a macro, and a
  # test even its folder, so that more sets than these two do not pay.
  set(modules Core)
  if(Widgets IN_LIST seen)
    list(APPEND modules Gui Widgets)
  endif()
  list(JOIN modules _ name)
  string(TOLOWER precompiled_${name} name)
  if(NOT TARGET ${name})
    add_library(${name} OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled/empty.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    list(TRANSFORM modules PREPEND Qt:: OUTPUT_VARIABLE libraries)
    target_link_libraries(${name} PRIVATE project_options ${libraries})
    list(TRANSFORM modules TOLOWER OUTPUT_VARIABLE headers)
    list(TRANSFORM headers REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/cmake/precompiled/\\1.h")
    target_precompile_headers(${name} PRIVATE ${headers})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${name})
endfunction()

# project_precompile_below(<folder>): for every target of the folder and of those
# below it, unless precompiled headers are switched off. Call it when all of them
# are there.
function(project_precompile_below folder)
  if(NOT TUTORIAL_PCH)
    return()
  endif()
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    get_target_property(linked ${target} LINK_LIBRARIES)
    if(linked AND type MATCHES "EXECUTABLE|_LIBRARY" AND NOT type STREQUAL INTERFACE_LIBRARY)
      project_precompile(${target})
    endif()
  endforeach()
  get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS folders)
    project_precompile_below(${subfolder})
  endforeach()
endfunction()
