# Installs the built library into a fresh prefix, builds the consumer project against it and runs
# it. Called by ctest with BUILD_DIR, SOURCE_DIR, WORK_DIR, CXX, GENERATOR and FLAGS.
file(REMOVE_RECURSE ${WORK_DIR})
function(step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed (${rc}): ${ARGN}")
  endif()
endfunction()
step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/stage)
# The public headers only: the umbrella at the top, no internal header anywhere.
set(inc ${WORK_DIR}/stage/include/QMXOdbAttr)
if(NOT EXISTS ${inc}/QMXOdbAttr.h OR NOT EXISTS ${inc}/api/qmx_Repositories.h)
  message(FATAL_ERROR "the umbrella header or the typed repositories were not installed under ${inc}")
endif()
file(GLOB_RECURSE internal RELATIVE ${inc} ${inc}/*_Versions.h ${inc}/*IMPLSC.h ${inc}/*Shortcut.h
     ${inc}/QMXOdbK*C.h ${inc}/*Advice*.h ${inc}/*Wrapper.h ${inc}/cmd_SessionSupport.h ${inc}/*.cpp)
if(internal)
  message(FATAL_ERROR "internal headers were installed: ${internal}")
endif()
# The program of the API reference's front page is built too (not run: it opens a file of its own).
file(READ ${SOURCE_DIR}/../../docs/cpp/mainpage.md page)
string(REGEX MATCH "```cpp\n(#include <cstdio>[^`]*int main\\(\\)[^`]*)```" found "${page}")
if(NOT CMAKE_MATCH_1)
  message(FATAL_ERROR "docs/cpp/mainpage.md has no program (a cpp block with main)")
endif()
file(WRITE ${WORK_DIR}/mainpage_example.cpp "${CMAKE_MATCH_1}")
step(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR} -DCMAKE_BUILD_TYPE=Debug -DQMX_MAINPAGE_EXAMPLE=${WORK_DIR}/mainpage_example.cpp
     -DCMAKE_PREFIX_PATH=${WORK_DIR}/stage -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${FLAGS}"
     "-DCMAKE_EXE_LINKER_FLAGS=${FLAGS}")
step(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
step(${WORK_DIR}/build/consumer ${WORK_DIR}/model.odb)
