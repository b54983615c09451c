# SPDX-License-Identifier: MIT
# `cpack` in the build folder makes Debian packages of what install() names, one of
# each component; scripts/packages.sh does so from the start.
set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "tutorial")
set(CPACK_PACKAGE_CONTACT "The tutorial's maintainers <maintainers@example.org>")
# Each package has its own, and what stands here would come before it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL tutorial tutorial-demo tutorial-host-dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The kit's shared library, for the programs that link it
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)

if(TUTORIAL_QT EQUAL 6)
  set(qt_development "qt6-base-dev (>= ${least_qt})")
  set(qt_texts qt6-translations-l10n)
else()
  set(qt_development "qtbase5-dev (>= ${least_qt})")
  set(qt_texts qttranslations5-l10n)
endif()

# debian_package(<name> <section> <description> [DEPENDS ...] [RECOMMENDS ...]): what
# the component of this name is told beside its shared libraries. The description's
# first line is its summary.
function(debian_package name section description)
  cmake_parse_arguments(ARG "" "" "DEPENDS;RECOMMENDS" ${ARGN})
  string(TOUPPER ${name} component)
  list(JOIN ARG_DEPENDS ", " depends)
  list(JOIN ARG_RECOMMENDS ", " recommends)
  set(CPACK_DEBIAN_${component}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${component}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${component}_DESCRIPTION "${description}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${component}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${component}_PACKAGE_RECOMMENDS "${recommends}" PARENT_SCOPE)
endfunction()

set(same_version "(= ${PROJECT_VERSION})")
debian_package(tutorial education
  "arrow, hints and buttons above the windows of a program
Leads a learner through a program: an arrow shows where, a hint says what to do
and the tutorial goes on when it is done. Holds the tool that tutorials are
written with, and a checker of their files."
  # Qt's own texts in the user's language
  RECOMMENDS ${qt_texts})
debian_package(tutorial-demo education
  "small map editor that plays tutorials
A program to try tutorials with: it carries two of its own, plays them for the
learner or by itself, and opens them in the tool that they are written with."
  DEPENDS "tutorial ${same_version}")
debian_package(tutorial-host-dev libdevel
  "library for programs that play tutorials
What a Qt program links to play tutorials, as a static and as a shared library,
with headers and packages for CMake and pkg-config; and the learner's hands,
for the tests of such programs."
  DEPENDS ${qt_development} libx11-dev libxtst-dev
  RECOMMENDS "tutorial ${same_version}")
set(CPACK_DEBIAN_TUTORIAL-HOST-DEV_PACKAGE_CONTROL_EXTRA
  ${CMAKE_SOURCE_DIR}/packaging/debian/triggers)
include(CPack)
