"""The type stubs generated from the class metadata: shipped with the package, accepted by the type
checker on the example scripts, and strict enough to catch the mistakes an editor should flag."""
import importlib.util
import os
import pathlib
import subprocess
import sys

import pytest

import qmxodbattr as qa

PACKAGE = pathlib.Path(qa.__file__).parent
EXAMPLES = pathlib.Path(os.environ.get("QMX_EXAMPLES_DIR", pathlib.Path(__file__).parents[2] / "examples"))
needs_mypy = pytest.mark.skipif(importlib.util.find_spec("mypy") is None, reason="the type checker is not installed")


def mypy(*files):
    env = dict(os.environ, MYPYPATH=str(PACKAGE.parent))
    run = subprocess.run([sys.executable, "-m", "mypy", "--no-incremental", "--cache-dir", os.devnull,
                          "--check-untyped-defs", "--no-error-summary", *map(str, files)],
                         capture_output=True, text=True, env=env)
    return run.returncode, run.stdout.splitlines()


def test_the_package_ships_its_stubs():
    assert (PACKAGE / "py.typed").exists()
    stubs = (PACKAGE / "__init__.pyi").read_text()
    assert "class CircularProfile(Object):" in stubs
    assert "integrationScheme: Literal['THIN_WALL', 'THICK_WALL']" in stubs
    for ctor in qa.constructors():
        assert f"\nclass {ctor}(" in stubs


@needs_mypy
def test_the_examples_type_check():
    scripts = sorted(EXAMPLES.glob("*.py"))
    assert scripts
    code, out = mypy(*scripts)
    assert (code, out) == (0, [])


PROBE = '''import qmxodbattr as qa
p = qa.PipeProfile(r=1.0, integrationScheme="thick_wall")
q = qa.CircularProfile(radius=1.0)
p.r = "wide"
a = qa.TabularAmplitude(data=[[0.0, 0.0]], timeSpan="TOTAL")
a.smooth = 0.1
db = qa.Database.open(__file__)
'''


@needs_mypy
def test_the_stubs_catch_wrong_literals_keywords_and_types(tmp_path):
    probe = tmp_path / "probe.py"
    probe.write_text(PROBE)
    code, out = mypy(probe)
    assert code == 1
    lines = sorted({int(line.split(":")[1]) for line in out if ": error:" in line})
    assert lines == [2, 3, 4]


VIEWS = '''import qmxodbattr as qa
e = qa.Elastic(table=[[0.0, 0.0], [1.0, 0.3]])
e.table = [[0.0, 0.0], [2.0, 0.3]]
t = e.table
if isinstance(t, qa.TableView):
    t.allowEmptyFirstRow = True
    flag: bool = t.allowEmptyFirstRow
f = qa.ObjectiveFunction(objectives=[qa.Objective(designResponse="A")])
objectives = f.objectives
if isinstance(objectives, qa.ObjectListView):
    objectives.append(qa.Objective(designResponse="B"))
    copies: list[qa.Objective] = objectives.copy()
bad: str = qa.TableView.members
'''


@needs_mypy
def test_the_views_type_check(tmp_path):
    probe = tmp_path / "views.py"
    probe.write_text(VIEWS)
    code, out = mypy(probe)
    assert code == 1
    assert sorted({int(line.split(":")[1]) for line in out if ": error:" in line}) == [13]
