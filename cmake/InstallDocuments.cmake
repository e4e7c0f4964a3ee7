# Installs the documents that the README links to, in the same folders as in the sources. Headers, schemas and example
# VIFs are installed elsewhere, so links to them are adjusted.

# Installs a Markdown file, given by its path in the sources.
function(project_install_document document)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${document}")
  file(READ "${PROJECT_SOURCE_DIR}/${document}" text)
  cmake_path(GET document PARENT_PATH folder)
  set(moved c/vif.h include schemas examples/vif)
  set(moved_to "${CMAKE_INSTALL_INCLUDEDIR}/vif.h" "${header_dir}" "${CMAKE_INSTALL_DATADIR}/vendorinfofile/schemas"
    "${CMAKE_INSTALL_DATADIR}/vendorinfofile/examples")
  foreach(from to IN ZIP_LISTS moved moved_to)
    file(RELATIVE_PATH source_link "/${folder}" "/${from}")
    file(RELATIVE_PATH installed_link "/${CMAKE_INSTALL_DOCDIR}/${folder}" "/${to}")
    string(REGEX REPLACE "\\]\\(${source_link}([/)])" "](${installed_link}\\1" text "${text}")
  endforeach()
  file(WRITE "${PROJECT_BINARY_DIR}/documents/${document}" "${text}")
  install(FILES "${PROJECT_BINARY_DIR}/documents/${document}" DESTINATION "${CMAKE_INSTALL_DOCDIR}/${folder}")
endfunction()

foreach(document IN ITEMS
    README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md bench/README.md docs/architecture.md docs/c.md docs/ci.md docs/command.md
    docs/python.md docs/reliability.md docs/tutorial.md docs/web.md docs/windows.md
    examples/README.md examples/c/README.md examples/host/README.md)
  project_install_document(${document})
endforeach()
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY docs/ DESTINATION "${CMAKE_INSTALL_DOCDIR}/docs" PATTERN "*.md" EXCLUDE)
install(DIRECTORY examples/ DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples"
  PATTERN "*.md" EXCLUDE PATTERN "vif" EXCLUDE)
install(DIRECTORY examples/vif/ DESTINATION "${CMAKE_INSTALL_DATADIR}/vendorinfofile/examples"
  FILES_MATCHING PATTERN "*.txt" PATTERN "*.xml")
