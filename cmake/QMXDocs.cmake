# The `docs` target: the API reference of the public headers, by Doxygen when it is installed.
find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
  set(QMX_DOCS_OUTPUT ${PROJECT_BINARY_DIR}/docs)
  configure_file(${PROJECT_SOURCE_DIR}/docs/cpp/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
  add_custom_target(docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile
                    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                    COMMENT "The API reference, in ${QMX_DOCS_OUTPUT}/html" VERBATIM)
endif()
