# What `cmake --install` installs, including the files that CMake and pkg-config need to find it. The component Library
# is what a program needs to run: `cmake --install BUILD --component Library` installs that alone.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/VendorInfoFile")
set(header_dir "${CMAKE_INSTALL_INCLUDEDIR}/vendorinfofile")

install(TARGETS VendorInfoFile VendorInfoFileAnalysis VendorInfoFileC VendorInfoFileHost EXPORT VendorInfoFileTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Library
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Library
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
# Beside the folder of the C++ headers, so that programs in C see none of those.
install(FILES c/vif.h DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
if(MINGW AND VENDORINFOFILE_DLLTOOL)
  install(FILES "${PROJECT_BINARY_DIR}/c/vif.lib" DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endif()
install(DIRECTORY include/ DESTINATION "${header_dir}" FILES_MATCHING PATTERN "*.h")
file(GLOB analysis_headers CONFIGURE_DEPENDS analysis/*.h)
install(FILES ${analysis_headers} DESTINATION "${header_dir}/analysis")
install(DIRECTORY host/BaseUtilities DESTINATION "${header_dir}" FILES_MATCHING PATTERN "*.h")
install(FILES
  host/TestUtilities/AppState.h
  host/TestUtilities/DOMDoc.h
  host/TestUtilities/DOMDocProblem.h
  host/TestUtilities/TULog.h
  host/TestUtilities/TUUserInput.h
  DESTINATION "${header_dir}/TestUtilities")
install(FILES host/ZorvenLog/TestSuiteLog.h DESTINATION "${header_dir}/ZorvenLog")
install(FILES
  host/msxml/Com.h
  host/msxml/ComApartment.h
  host/msxml/ComError.h
  host/msxml/ComPointer.h
  host/msxml/MsXml.h
  DESTINATION "${header_dir}/msxml")
include(InstallDocuments)

install(EXPORT VendorInfoFileTargets NAMESPACE VendorInfoFile:: DESTINATION "${package_dir}")
configure_package_config_file(cmake/VendorInfoFileConfig.cmake.in
  "${PROJECT_BINARY_DIR}/VendorInfoFileConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VendorInfoFileConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/VendorInfoFileConfig.cmake"
  "${PROJECT_BINARY_DIR}/VendorInfoFileConfigVersion.cmake"
  DESTINATION "${package_dir}")

# The prefix is relative to this file, so that the installation can be moved.
file(RELATIVE_PATH prefix_from_pc "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
if(WIN32)
  set(pc_system_libraries " -lole32 -loleaut32")
endif()
configure_file(cmake/vendorinfofile.pc.in "${PROJECT_BINARY_DIR}/vendorinfofile.pc" @ONLY)
configure_file(cmake/vendorinfofile-analysis.pc.in "${PROJECT_BINARY_DIR}/vendorinfofile-analysis.pc" @ONLY)
if(UNIX AND NOT APPLE)
  set(vif_rpath_link " -Wl,-rpath-link,\${libdir}")  # where the linker finds the libraries that this one needs
endif()
configure_file(cmake/vif.pc.in "${PROJECT_BINARY_DIR}/vif.pc" @ONLY)
install(FILES
  "${PROJECT_BINARY_DIR}/vendorinfofile.pc"
  "${PROJECT_BINARY_DIR}/vendorinfofile-analysis.pc"
  "${PROJECT_BINARY_DIR}/vif.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
