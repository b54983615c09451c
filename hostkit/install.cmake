# SPDX-License-Identifier: MIT
# The kit, for find_package(TutorialHost) and for pkg-config.
include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/TutorialHost)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/TutorialHost)

install(FILES include/TutorialHost/Host DESTINATION ${headers} COMPONENT tutorial-host-dev)
install(FILES host.h DESTINATION ${headers}/hostkit COMPONENT tutorial-host-dev)
install(FILES ${CMAKE_SOURCE_DIR}/editor/scenario/problem.h
  ${CMAKE_SOURCE_DIR}/editor/scenario/rules.h
  DESTINATION ${headers}/editor/scenario COMPONENT tutorial-host-dev)

# kit_install(<target>): the library, and what CMake is told of it.
function(kit_install target)
  get_target_property(name ${target} EXPORT_NAME)
  install(TARGETS ${target} EXPORT Tutorial${name}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT tutorial-host-dev
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT tutorial-host-dev
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tutorial-host-dev)
  install(EXPORT Tutorial${name} NAMESPACE Tutorial::
    DESTINATION ${package} COMPONENT tutorial-host-dev)
endfunction()

# kit_pkgconfig(<name> <description> <requires>)
function(kit_pkgconfig name description requires)
  file(RELATIVE_PATH prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" prefix ${prefix})
  configure_file(${CMAKE_CURRENT_SOURCE_DIR}/pkgconfig.in
    ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT tutorial-host-dev)
endfunction()

kit_install(tutorialhost_static)
kit_install(tutorialhost_shared)
kit_pkgconfig(TutorialHost "Plays tutorials in a program"
  "${qt}Widgets >= ${least_qt}, ${qt}Network >= ${least_qt}")
if(TARGET tutorialautoplay)
  kit_install(tutorialautoplay)
  install(FILES include/TutorialHost/Autoplay DESTINATION ${headers} COMPONENT tutorial-host-dev)
  install(FILES autoplay/autoplay.h DESTINATION ${headers}/hostkit/autoplay
    COMPONENT tutorial-host-dev)
  kit_pkgconfig(TutorialAutoplay "Plays tutorials and their learner, for tests"
    "TutorialHost = ${PROJECT_VERSION}, x11, xtst")
endif()

configure_package_config_file(TutorialHostConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/TutorialHostConfig.cmake
  INSTALL_DESTINATION ${package})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/TutorialHostConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/TutorialHostConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/TutorialHostConfigVersion.cmake
  DESTINATION ${package} COMPONENT tutorial-host-dev)
