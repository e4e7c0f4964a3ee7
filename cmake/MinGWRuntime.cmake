# The compiler's run-time libraries, which a Windows program built by MinGW-w64 needs beside it. They are shared by
# library and program, because an exception that one throws and the other catches is counted in them.
file(MAKE_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${library}"
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
  # Most of their size is for debugging them.
  set(stripped "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${library}")
  execute_process(COMMAND "${CMAKE_STRIP}" -o "${stripped}" "${file}" COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND runtime_libraries "${stripped}")
endforeach()

if(NOT VENDORINFOFILE_INSTALL)
  return()
endif()
install(FILES ${runtime_libraries} DESTINATION "${CMAKE_INSTALL_BINDIR}")

# Under which licences they are, as far as Debian says.
foreach(package gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev)
  if(EXISTS "/usr/share/doc/${package}/copyright")
    install(FILES "/usr/share/doc/${package}/copyright"
      DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME "copyright.${package}")
  endif()
endforeach()
