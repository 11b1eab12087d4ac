# The class reference in docs/ says what the registered classes say now: made afresh by the tool
# and compared with the committed file.
execute_process(COMMAND ${ODBATTR} reference --out ${OUT} RESULT_VARIABLE made)
if(NOT made EQUAL 0)
  message(FATAL_ERROR "odbattr reference failed (${made})")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT} ${REFERENCE} RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "${REFERENCE} is not what the classes say now (the fresh one is ${OUT}): "
                      "regenerate it with `cmake --build build --target class_reference` and commit it")
endif()
