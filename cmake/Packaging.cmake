# SPDX-License-Identifier: MIT
# `cpack` in the build folder makes a Debian package of what install() names.
set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "tutorial")
set(CPACK_PACKAGE_CONTACT "The tutorial's maintainers <maintainers@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "education")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt's own texts in the user's language
if(TUTORIAL_QT EQUAL 6)
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
else()
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qttranslations5-l10n)
endif()
include(CPack)
