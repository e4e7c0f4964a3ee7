# The packages that CPack makes of what is installed: a zip file for Windows; a Debian package for Linux and, for other
# distributions, a tar file.
set(CPACK_PACKAGE_VENDOR "The VendorInfoFile developers")
set(CPACK_PACKAGE_CONTACT "The VendorInfoFile developers <developers@vendorinfofile.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_SYSTEM_NAME win64)
else()
  set(CPACK_GENERATOR DEB TGZ)
  set(CPACK_SYSTEM_NAME linux-${CMAKE_SYSTEM_PROCESSOR})
  set(CPACK_PACKAGE_DESCRIPTION
    "A shared library that turns a VIF, in text or XML, into a list of fields that\ncompliance test suites can ask, with headers, and the command vif.")
  set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianCompletion.cmake")
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()

include(CPack)
