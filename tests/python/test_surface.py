"""The module as Python code expects it: path-like file names, repositories as mutable mappings
(of a model, nested in one, or inside a detached object), copies and pickles of detached objects,
and short repr / multi-line str."""
import collections.abc
import copy
import pickle

import pytest

import qmxodbattr as qa


@pytest.fixture
def model():
    db = qa.Database()
    m = db.create_model("M")
    m.profiles["A"] = qa.CircularProfile(r=1.0)
    m.profiles["B"] = qa.CircularProfile(r=2.0)
    return m


def test_files_are_taken_as_path_like(workdir):
    db = qa.Database()
    db.create_model("M").profiles["P"] = qa.CircularProfile(r=3.0)
    path = workdir / "pathlike.odb"
    db.save(path)
    assert qa.Database.open(path)["M"].profiles["P"].r == 3.0
    db.save(path, overwrite=True)
    with pytest.raises(TypeError):
        db.save(42)
    with pytest.raises(TypeError):
        qa.Database.open(b"bytes-are-no-text.odb")


def test_repositories_are_mutable_mappings(model):
    profiles = model.profiles
    assert isinstance(profiles, collections.abc.MutableMapping)
    assert profiles.get("A").r == 1.0 and profiles.get("Z") is None and profiles.get("Z", 5) == 5
    popped = profiles.pop("A")
    assert popped.r == 1.0 and popped.detached and list(profiles) == ["B"]
    assert profiles.pop("A", None) is None
    with pytest.raises(KeyError):
        profiles.pop("A")
    profiles.update({"C": qa.CircularProfile(r=3.0)}, D=qa.CircularProfile(r=4.0))
    assert list(profiles.keys()) == ["B", "C", "D"]
    assert profiles.setdefault("B", qa.CircularProfile(r=9.0)).r == 2.0
    assert profiles.setdefault("E", qa.CircularProfile(r=5.0)).r == 5.0
    assert [(k, v.r) for k, v in profiles.items()] == [("B", 2.0), ("C", 3.0), ("D", 4.0), ("E", 5.0)]
    assert profiles.popitem()[0] == "E"
    profiles.clear()
    assert len(profiles) == 0


def test_a_refused_update_keeps_what_was_there(model):
    with pytest.raises(TypeError):
        model.profiles.update({"C": "not an object"})
    assert list(model.profiles) == ["A", "B"]


def test_nested_repositories_are_reached_one_way():
    db = qa.Database()
    m = db.create_model("M")
    m.engineeringFeatures.inertias["Mass"] = qa.PointMassInertia(region="RP", mass=2.0)
    assert m.engineeringFeatures.inertias["Mass"].mass == 2.0
    assert m.engineeringFeatures["inertias"]["Mass"].mass == 2.0
    task = qa.TopologyTask()
    task.designResponses["E"] = qa.SingleTermDesignResponse()
    assert isinstance(task.designResponses, qa.Repository) and list(task.designResponses) == ["E"]
    m.optimizationTasks["T"] = task
    responses = m.optimizationTasks["T"].designResponses
    assert isinstance(responses, qa.Repository) and list(responses) == ["E"]
    responses["V"] = qa.SingleTermDesignResponse()
    assert db.execute({"op": "list", "path": ["M", "optimizationTasks", "T", "designResponses"]})["result"] == ["E", "V"]


def test_a_repository_inside_a_detached_object_changes_it():
    task = qa.TopologyTask()
    task.designResponses["E"] = qa.SingleTermDesignResponse()
    task.designResponses.update(V=qa.SingleTermDesignResponse())
    assert list(task.to_dict()["designResponses"]) == ["E", "V"]
    del task.designResponses["E"]
    assert list(task.designResponses) == ["V"] and "E" not in task.designResponses
    with pytest.raises(KeyError):
        del task.designResponses["E"]
    with pytest.raises(qa.CommandError):
        task.designResponses["X"] = qa.CircularProfile()  # not a design response
    assert list(task.designResponses) == ["V"]


def test_copies_and_pickles_of_detached_objects_are_separate():
    a = qa.TabularAmplitude(timeSpan="TOTAL", data=[[0.0, 0.0], [1.0, 1.0]])
    a.baselineCorrection = qa.BaselineCorrection(intervals=[0.5])
    for twin in (copy.deepcopy(a), copy.copy(a), pickle.loads(pickle.dumps(a))):
        assert type(twin) is qa.TabularAmplitude and twin == a
        twin.data[0][1] = 0.5
        twin.baselineCorrection.intervals.append(1.0)
        assert a.data == [[0.0, 0.0], [1.0, 1.0]] and a.baselineCorrection.intervals == [0.5]


def test_an_object_in_a_model_is_not_pickled_as_a_view(model):
    with pytest.raises(TypeError):
        pickle.dumps(model.profiles["A"])
    assert pickle.loads(pickle.dumps(model.profiles["A"].copy())).r == 1.0


# (object, repr): the constructor and the members that differ from their defaults.
REPRS = [
    (lambda: qa.Material(), "Material()"),
    (lambda: qa.CircularProfile(), "CircularProfile()"),
    (lambda: qa.CircularProfile(r=2.5), "CircularProfile(r=2.5)"),
    (lambda: qa.PipeProfile(r=5.0, t=0.5, integrationScheme="THICK_WALL"),
     "PipeProfile(r=5.0, t=0.5, integrationScheme='THICK_WALL')"),
    (lambda: qa.TabularAmplitude(data=[[0.0, 0.0], [2.0, 1.0]], baselineCorrection=qa.BaselineCorrection(intervals=[0.5])),
     "TabularAmplitude(data=[[0.0, 0.0], [2.0, 1.0]], baselineCorrection=BaselineCorrection(intervals=[0.5]))"),
]


@pytest.mark.parametrize("make,text", REPRS)
def test_repr_is_the_constructor_with_what_differs(make, text):
    assert repr(make()) == text


def test_str_is_a_member_a_line(model):
    a = qa.TabularAmplitude(data=[[0.0, 0.0], [2.0, 1.0]], baselineCorrection=qa.BaselineCorrection(intervals=[0.5]))
    assert str(a) == ("TabularAmplitude(\n"
                      "    data=[[0.0, 0.0], [2.0, 1.0]],\n"
                      "    baselineCorrection=BaselineCorrection(\n"
                      "        intervals=[0.5],\n"
                      "    ),\n"
                      ")")
    assert str(qa.Material()) == "Material()"
    assert repr(model.profiles["B"]) == "CircularProfile(r=2.0)"
