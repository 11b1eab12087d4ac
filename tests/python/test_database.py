"""Models, repositories and objects inside a database: the repository protocol, changes through
proxies, refusals that change nothing, validation with paths, and save and open."""
import os
import pathlib
import sqlite3
import subprocess
import sys

import pytest

import qmxodbattr as qa

ENUM_FROM_STRING = "omu_PrimEnum(const cow_String&) - str not allowed: "


@pytest.fixture
def db():
    return qa.Database()


@pytest.fixture
def model(db):
    return db.create_model("Model-1")


def test_models_of_a_database(db):
    assert len(db) == 0 and list(db) == []
    m = db.create_model("Model-1")
    db.create_model("Model-2")
    assert m.name == "Model-1"
    assert list(db) == ["Model-1", "Model-2"] and "Model-2" in db and "Model-3" not in db
    assert set(m.repositories()) >= {"adaptiveMeshControls", "profiles", "amplitudes"}
    assert set(m.repositories()) <= set(dir(m))
    with pytest.raises(qa.CommandError):
        db.create_model("Model-1")  # a name already taken
    with pytest.raises(KeyError):
        db["Model-3"]
    del db["Model-2"]
    assert list(db) == ["Model-1"]
    with pytest.raises(AttributeError):
        m.nothingHere


def test_repository_protocol(model):
    profiles = model.profiles
    assert len(profiles) == 0 and "Rod" not in profiles
    profiles["Rod"] = qa.CircularProfile(r=10.0)
    profiles["Pipe"] = qa.PipeProfile(r=5.0, t=1.0)
    profiles["Box"] = qa.BoxProfile(a=10.0, b=20.0, uniformThickness=True, t1=1.0)
    assert len(profiles) == 3
    assert sorted(profiles.keys()) == ["Box", "Pipe", "Rod"]
    assert sorted(profiles) == sorted(profiles.keys())
    assert "Rod" in profiles and "rod" not in profiles and 3 not in profiles
    items = dict(profiles.items())
    assert type(items["Pipe"]) is qa.PipeProfile and items["Pipe"].t == 1.0
    assert [type(v).__name__ for v in profiles.values()] == [type(items[k]).__name__ for k in profiles.keys()]
    assert profiles["Rod"].path == ["Model-1", "profiles", "Rod"]
    assert profiles.get("None") is None and profiles.get("Rod").r == 10.0
    with pytest.raises(qa.NotFoundError) as e:
        profiles["None"]
    assert isinstance(e.value, KeyError)
    assert e.value.message == 'There is no "None" in profiles'
    del profiles["Pipe"]
    assert sorted(profiles) == ["Box", "Rod"]
    with pytest.raises(KeyError) as e:
        del profiles["Pipe"]
    assert str(e.value) == 'There is no "Pipe" in profiles'
    # Putting a value under a taken key replaces it, kind and all.
    profiles["Rod"] = qa.RectangularProfile(a=1.0, b=2.0)
    assert type(profiles["Rod"]) is qa.RectangularProfile and len(profiles) == 2


def test_wrong_kind_for_a_repository_changes_nothing(model):
    model.profiles["Rod"] = qa.CircularProfile(r=10.0)
    with pytest.raises(qa.CommandError):
        model.profiles["Rod"] = qa.TabularAmplitude()
    with pytest.raises(qa.CommandError):
        model.profiles["New"] = qa.TabularAmplitude()
    with pytest.raises(TypeError):
        model.profiles["New"] = 3.0
    assert list(model.profiles) == ["Rod"] and model.profiles["Rod"].r == 10.0


def test_a_failed_set_changes_nothing(model):
    model.adaptiveMeshControls["C-1"] = qa.AdaptiveMeshControl(remapping="FIRST_ORDER_ADVECTION")
    c = model.adaptiveMeshControls["C-1"]
    before = c.to_dict()
    with pytest.raises(qa.CommandError) as e:
        c.remapping = "first_order_advection"
    assert e.value.message.startswith(ENUM_FROM_STRING + "first_order_advection  Permissible: ")
    with pytest.raises(qa.CommandError):
        c.initialFeatureAngle = "steep"
    with pytest.raises(qa.MemberError):
        c.angle = 3.0
    assert c.to_dict() == before
    # A good set lands in the model, seen through every proxy of the element.
    c.initialFeatureAngle = 45
    assert model.adaptiveMeshControls["C-1"].initialFeatureAngle == 45.0


def test_nested_objects_in_the_model(model):
    model.amplitudes["A"] = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    a = model.amplitudes["A"]
    assert a.baselineCorrection is None
    a.baselineCorrection = qa.BaselineCorrection(intervals=[0.5, 1.0])
    b = a.baselineCorrection
    assert type(b) is qa.BaselineCorrection
    assert b.path == ["Model-1", "amplitudes", "A", "baselineCorrection"]
    b.intervals = [0.0, 0.0]
    assert model.amplitudes["A"].baselineCorrection.intervals == [0.0, 0.0]
    with pytest.raises(qa.ValidationError) as e:
        model.amplitudes["A"].validate()
    assert e.value.message == ("Invalid baseline correction values, expected non-negative\n"
                               "monotonically increasing numbers.")
    with pytest.raises(qa.CommandError):
        a.baselineCorrection = qa.CircularProfile(r=1.0)
    assert model.amplitudes["A"].baselineCorrection.intervals == [0.0, 0.0]
    a.baselineCorrection = None
    assert a.baselineCorrection is None
    assert a.validate() is None


def test_inserted_objects_are_copies(model):
    p = qa.CircularProfile(r=1.0)
    model.profiles["A"] = p
    model.profiles["B"] = p
    p.r = 2.0
    model.profiles["A"].r = 3.0
    assert (p.r, model.profiles["A"].r, model.profiles["B"].r) == (2.0, 3.0, 1.0)
    # And what comes out of a model as a copy is detached from it.
    c = model.profiles["B"].copy()
    c.r = 9.0
    assert model.profiles["B"].r == 1.0 and c.path is None
    # An element of one key put under another is a copy too.
    model.profiles["C"] = model.profiles["A"]
    model.profiles["C"].r = 4.0
    assert model.profiles["A"].r == 3.0


def test_validation_of_repositories_models_and_databases_names_the_failing_path(db, model):
    model.profiles["Good"] = qa.CircularProfile(r=1.0)
    assert model.profiles.validate() == {"validated": 1}
    model.profiles["Thin"] = qa.PipeProfile(r=5.0, t=5.0)
    for target in (model.profiles, model, db):
        with pytest.raises(qa.ValidationError) as e:
            target.validate()
        assert e.value.message == "The thickness must be less than the radius."
        assert e.value.path == ["Model-1", "profiles", "Thin"]
        assert e.value.file == "QMXOdbKbpC.m/src/kbpC_assert"
    model.profiles["Thin"].t = 1.0
    assert db.validate() == {"validated": 2}


def test_save_and_open_round_trip(db, model, workdir):
    model.adaptiveMeshControls["C-1"] = qa.AdaptiveMeshControl(smoothingPriority="GRADED", curvatureRefinement=2.5)
    model.profiles["I"] = qa.IProfile(l=100.0, h=200.0, b1=100.0, b2=90.0, t1=8.0, t2=8.0, t3=6.0)
    a = qa.TabularAmplitude(timeSpan="TOTAL", data=[[0.0, 0.0], [0.5, 0.8], [2.0, 0.25]])
    a.baselineCorrection = qa.BaselineCorrection(intervals=[0.5, 2.0])
    model.amplitudes["H"] = a
    db.create_model("Empty")
    path = str(workdir / "round.odb")
    db.save(path)
    back = qa.Database.open(path)
    assert list(back) == ["Empty", "Model-1"]
    assert back.to_dict() == db.to_dict()
    assert back["Model-1"].amplitudes["H"].baselineCorrection.intervals == [0.5, 2.0]
    assert back["Model-1"].adaptiveMeshControls["C-1"].smoothingPriority == "GRADED"
    # The reopened database is a database of its own.
    back["Model-1"].profiles["I"].h = 250.0
    assert model.profiles["I"].h == 200.0
    # A person can read the file with the sqlite3 shell.
    with sqlite3.connect(path) as conn:
        names = {r[0] for r in conn.execute("select name from sqlite_master where type='table'")}
    assert "kbpC_IbeamProfile" in names or any("Ibeam" in n for n in names)


@pytest.mark.parametrize("content,reason", [
    (None, "there is no such file"),
    (b"hello world" * 64, "not a model database"),
])
def test_opening_what_is_not_a_model_database_is_refused(workdir, content, reason):
    path = workdir / "bad.odb"
    if path.exists():
        path.unlink()
    if content is not None:
        path.write_bytes(content)
    with pytest.raises(qa.CommandError) as e:
        qa.Database.open(str(path))
    assert str(path) in e.value.message and reason in e.value.message


def test_a_failed_save_leaves_the_previous_file(db, model, workdir):
    model.profiles["Rod"] = qa.CircularProfile(r=1.0)
    path = str(workdir / "keep.odb")
    db.save(path)
    with pytest.raises(qa.Error):
        db.save(str(workdir / "no-such-folder" / "x.odb"))
    assert list(qa.Database.open(path)["Model-1"].profiles) == ["Rod"]


def test_commands_of_the_command_layer(db):
    r = db.execute({"op": "create", "path": ["Model-1"]})
    assert r == {"ok": True, "result": None}
    r = db.execute({"op": "create", "path": ["Model-1", "profiles", "R"], "type": "CircularProfile",
                    "values": {"r": 4}})
    assert r["ok"] and db["Model-1"].profiles["R"].r == 4.0
    r = db.execute({"op": "frobnicate"})
    assert r["ok"] is False and r["error"]["kind"] == "CmdException"


def test_example_script(workdir):
    root = pathlib.Path(os.environ.get("QMX_EXAMPLES_DIR", pathlib.Path(__file__).parents[2] / "examples"))
    out = workdir / "example.odb"
    run = subprocess.run([sys.executable, str(root / "example_model.py"), str(out)], capture_output=True, text=True,
                         env=dict(os.environ), timeout=120)
    assert run.returncode == 0, run.stdout + run.stderr
    assert "saved and reopened" in run.stdout
    back = qa.Database.open(str(out))
    m = back["Model-1"]
    assert {"Ale-Default", "Ale-Refined"} <= set(m.adaptiveMeshControls)
    assert m.adaptiveMeshControls["Ale-Refined"].meshingPredictor == "PREVIOUS"
    assert m.profiles["Pipe-50x5"].integrationScheme == "THICK_WALL"
    assert m.amplitudes["Load-History"].baselineCorrection.intervals == [0.5, 1.0, 2.0]
    back.validate()


def test_the_readme_script_runs(workdir):
    readme = (pathlib.Path(__file__).parents[2] / "README.md").read_text(encoding="utf-8")
    script = readme.split("```python\n", 1)[1].split("```", 1)[0]
    package = pathlib.Path(qa.__file__).resolve().parents[1]  # the script runs in the work folder
    run = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, cwd=workdir,
                         env=dict(os.environ, PYTHONPATH=str(package)), timeout=120)
    assert run.returncode == 0, run.stdout + run.stderr
    assert run.stdout.splitlines()[-1] == "PipeProfile(r=50.0, t=5.0, integrationScheme='THICK_WALL')"
    steel = qa.Database.open(workdir / "model.odb")["Model-1"].materials["Steel"]
    assert steel.elastic.table == [[210e3, 0.3], [200e3, 0.3]]


CHANGED = ("Cannot save the model database \"{}\": it was changed by another process since it was "
           "opened; save to another file or reopen")

SAVER = """
import sys, qmxodbattr as qa
db = qa.Database.open(sys.argv[1])
db["M"].profiles[sys.argv[2]] = qa.CircularProfile(r=1.0)
sys.stdout.write("opened\\n"); sys.stdout.flush()
sys.stdin.readline()
try:
    db.save(sys.argv[1])
    print("saved")
except qa.CommandError as e:
    print(str(e))
"""


def test_two_processes_saving_one_file_lose_nothing_silently(workdir):
    path = str(workdir / "shared.db")
    db = qa.Database()
    db.create_model("M")
    db.save(path)
    procs = [subprocess.Popen([sys.executable, "-c", SAVER, path, key], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, text=True) for key in ("A", "B")]
    for p in procs:
        assert p.stdout.readline() == "opened\n"  # both read the file before either saves
    for p in procs:
        p.stdin.write("go\n")
        p.stdin.flush()
    answers = sorted(p.communicate()[0].strip() for p in procs)
    assert answers == sorted(["saved", CHANGED.format(path)])
    assert len(qa.Database.open(path)["M"].profiles) == 1
    # This process never read the file since: its own save asks for overwrite to replace it.
    with pytest.raises(qa.CommandError) as e:
        db.save(path)
    assert str(e.value) == CHANGED.format(path)
    db.save(path, overwrite=True)
    assert len(qa.Database.open(path)["M"].profiles) == 0


def test_all_fields_shows_both_field_repositories_read_only(model):
    model.analyticalFields["AF-1"] = qa.ExpressionField(expression="X + Y")
    model.discreteFields["DF-1"] = qa.DiscreteFieldFromAnalytic(analyticFieldName="AF-1", location="ELEMENTS")
    assert "allFields" in model.repositories() and "allFields" in dir(model)
    fields = model.allFields
    assert list(fields) == ["AF-1", "DF-1"] and len(fields) == 2 and "DF-1" in fields
    assert type(fields["AF-1"]) is qa.ExpressionField and fields["AF-1"].expression == "X + Y"
    assert type(fields["DF-1"]) is qa.DiscreteField and fields["DF-1"].analyticFieldName == "AF-1"
    before = model.to_dict()
    read_only = '"allFields" shows the fields read-only; change a field in "analyticalFields" or "discreteFields"'
    with pytest.raises(qa.CommandError) as e:
        fields["AF-1"].expression = "Z"
    assert e.value.message == read_only
    with pytest.raises(qa.CommandError) as e:
        fields["New"] = qa.ExpressionField(expression="X")
    assert e.value.message == read_only
    with pytest.raises(qa.CommandError) as e:
        del fields["DF-1"]
    assert e.value.message == read_only
    assert model.to_dict() == before
    # A change through its own repository shows at once.
    model.analyticalFields["AF-1"].expression = "Z"
    assert model.allFields["AF-1"].expression == "Z"


def test_the_from_analytic_variant_makes_a_discrete_field():
    made = qa.DiscreteFieldFromAnalytic(analyticFieldName="AF-1", location="NODES")
    assert type(made) is qa.DiscreteField and "DiscreteFieldFromAnalytic" in qa.__all__
    assert made == qa.DiscreteField(analyticFieldName="AF-1")
