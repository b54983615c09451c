# SPDX-License-Identifier: MIT
# `cpack` in the build folder makes a Debian package of what install() names.
set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "tutorial")
set(CPACK_PACKAGE_CONTACT "The tutorial's maintainers <maintainers@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "education")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
