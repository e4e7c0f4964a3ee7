# Puts the style sheet and the script of a report into a header, with their hashes as a content security policy has them.

# The hash of a text in base64, as a content security policy has it. CMake has hexadecimal digits only.
function(project_policy_hash text variable)
  string(SHA256 digits "${text}")
  set(alphabet ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
  set(hash "")
  # 32 bytes in groups of three, the last of which has two.
  foreach(begin RANGE 0 60 6)
    string(SUBSTRING "${digits}00" ${begin} 6 group)
    foreach(shift 18 12 6 0)
      math(EXPR index "(0x${group} >> ${shift}) & 63")
      string(SUBSTRING "${alphabet}" ${index} 1 letter)
      string(APPEND hash "${letter}")
    endforeach()
  endforeach()
  string(REGEX REPLACE ".$" "=" hash "${hash}")
  set(${variable} "${hash}" PARENT_SCOPE)
endfunction()

function(project_generate_report_assets)
  set(assets "${CMAKE_CURRENT_SOURCE_DIR}/report/assets")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    "${assets}/report.css" "${assets}/picture.css" "${assets}/filter.js")
  file(READ "${assets}/report.css" style)
  file(READ "${assets}/picture.css" picture_style)
  file(READ "${assets}/filter.js" script)
  string(APPEND style "${picture_style}")
  project_policy_hash("${style}" style_hash)
  project_policy_hash("${script}" script_hash)
  configure_file("${CMAKE_CURRENT_SOURCE_DIR}/report/Assets.h.in" "${CMAKE_CURRENT_BINARY_DIR}/report/ReportAssets.h" @ONLY)
endfunction()
