# Installs the public headers: api/QMXOdbAttr.h at the top of the include folder and every header
# of the source tree it includes, directly or not, at its path in the tree. Run by `cmake
# --install` with QMX_SOURCE_DIR, QMX_CXX and QMX_HEADER_DEST. The compiler lists the includes
# (-MM: not the system's; -MG: a header it cannot find, a dependency's, is listed, not an error).
execute_process(COMMAND ${QMX_CXX} -std=c++20 -x c++ -MM -MG -I${QMX_SOURCE_DIR} ${QMX_SOURCE_DIR}/api/QMXOdbAttr.h
                OUTPUT_VARIABLE deps ERROR_VARIABLE err RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cannot list the includes of api/QMXOdbAttr.h:\n${err}")
endif()
string(REGEX REPLACE "\\\\\n" " " deps "${deps}")
string(REGEX REPLACE "^[^:]*:" "" deps "${deps}")
separate_arguments(deps UNIX_COMMAND "${deps}")
set(count 0)
foreach(dep ${deps})
  file(RELATIVE_PATH rel ${QMX_SOURCE_DIR} ${dep})
  if(rel MATCHES "^\\.\\." OR NOT EXISTS ${QMX_SOURCE_DIR}/${rel})
    continue()
  endif()
  get_filename_component(dir ${rel} DIRECTORY)
  file(INSTALL ${QMX_SOURCE_DIR}/${rel} DESTINATION ${QMX_HEADER_DEST}/${dir})
  math(EXPR count "${count} + 1")
endforeach()
if(count LESS 2)
  message(FATAL_ERROR "api/QMXOdbAttr.h includes no header of the tree: ${deps}")
endif()
file(INSTALL ${QMX_SOURCE_DIR}/api/QMXOdbAttr.h DESTINATION ${QMX_HEADER_DEST})
