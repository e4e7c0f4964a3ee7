# Makes a program's narrow text UTF-8 on Windows, as it is elsewhere: its arguments, file names, and the system code
# page, in which texts of XML VIFs are returned. Works from Windows 10, version 1903, on.
function(project_use_utf8 target)
  set(folder "${CMAKE_CURRENT_FUNCTION_LIST_DIR}")
  if(MSVC)
    target_sources(${target} PRIVATE "${folder}/utf8.manifest")
  elseif(WIN32)
    target_sources(${target} PRIVATE "${folder}/utf8.rc")
  endif()
endfunction()
