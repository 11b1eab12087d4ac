# Installs the build into a fresh prefix and imports the Python package from there alone: a clean
# environment whose only path to the package is the prefix's site-packages. Called by ctest with
# BUILD_DIR, PREFIX, PYTHON, SITE (relative to the prefix) and VERSION.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX} OUTPUT_QUIET RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cmake --install failed (${rc})")
endif()
foreach(file __init__.py py.typed __init__.pyi)
  if(NOT EXISTS ${PREFIX}/${SITE}/qmxodbattr/${file})
    message(FATAL_ERROR "the installed package lacks ${file}")
  endif()
endforeach()
set(script [=[
import os, sys
import qmxodbattr as qa
prefix, version, out = sys.argv[1], sys.argv[2], sys.argv[3]
assert os.path.realpath(qa.__file__).startswith(os.path.realpath(prefix)), qa.__file__
assert os.path.realpath(qa._core.__file__).startswith(os.path.realpath(prefix)), qa._core.__file__
assert qa.__version__ == version, qa.__version__
db = qa.Database()
db.create_model("M").profiles["P"] = qa.CircularProfile(r=2.0)
db.save(out)
assert qa.Database.open(out)["M"].profiles["P"].r == 2.0
print("imported", qa.__version__, "from", os.path.dirname(qa.__file__))
]=])
execute_process(COMMAND env -i PATH=/usr/bin:/bin PYTHONPATH=${PREFIX}/${SITE} ${PYTHON} -c "${script}"
                        ${PREFIX} ${VERSION} ${PREFIX}/check.odb
                WORKING_DIRECTORY ${PREFIX} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "importing the installed package failed (${rc})")
endif()
