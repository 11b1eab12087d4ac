"""Lists and tables seen in place: an edit inside one takes effect in its object (detached or in a
model) or raises with the system's message; it is never lost. Material tables read as their rows."""
import os
import pathlib
import subprocess
import sys

import pytest

import qmxodbattr as qa

ROWS = [[0.0, 0.0], [0.5, 0.8], [1.0, 1.0]]


def stored(db, *path):
    """What the command layer holds, read past the Python views."""
    r = db.execute({"op": "get", "path": list(path)})
    assert r["ok"], r
    return r["result"]


@pytest.fixture
def db():
    d = qa.Database()
    m = d.create_model("M")
    m.amplitudes["A"] = qa.TabularAmplitude(data=ROWS)
    m.materials["Steel"] = qa.Material(elastic=qa.Elastic(table=[[210000.0, 0.3]]))
    return d


# (edit, rows after it): each applied to a bound and to a detached amplitude.
EDITS = [
    (lambda t: t[1].__setitem__(1, 0.9), [[0.0, 0.0], [0.5, 0.9], [1.0, 1.0]]),
    (lambda t: t[-1].__setitem__(0, 2.0), [[0.0, 0.0], [0.5, 0.8], [2.0, 1.0]]),
    (lambda t: t.append([2.0, 0.5]), ROWS + [[2.0, 0.5]]),
    (lambda t: t.__delitem__(0), ROWS[1:]),
    (lambda t: t.insert(0, [-1.0, 0.0]), [[-1.0, 0.0]] + ROWS),
    (lambda t: t.__setitem__(slice(0, 2), [[0.0, 1.0]]), [[0.0, 1.0], [1.0, 1.0]]),
    (lambda t: t.extend([[2.0, 0.0], [3.0, 0.0]]), ROWS + [[2.0, 0.0], [3.0, 0.0]]),
    (lambda t: t.reverse(), ROWS[::-1]),
    (lambda t: t[0].__setitem__(slice(None), t[2]), [[1.0, 1.0], [0.5, 0.8], [1.0, 1.0]]),
]


@pytest.mark.parametrize("edit,after", EDITS)
def test_table_edits_reach_the_model(db, edit, after):
    edit(db["M"].amplitudes["A"].data)
    assert stored(db, "M", "amplitudes", "A", "data") == after
    assert db["M"].amplitudes["A"].data == after


@pytest.mark.parametrize("edit,after", EDITS)
def test_table_edits_reach_a_detached_object(edit, after):
    a = qa.TabularAmplitude(data=ROWS)
    edit(a.data)
    assert a.to_dict()["data"] == after
    assert a.data == after


def test_a_refused_edit_raises_and_changes_nothing(db):
    data = db["M"].amplitudes["A"].data
    with pytest.raises(qa.CommandError) as e:
        data.append([2.0])  # rows of unequal length
    assert "takes a table whose rows have equal lengths; row 3 has 1" in e.value.message
    assert e.value.member == "data"
    with pytest.raises(qa.CommandError):
        data[0][0] = "zero"
    with pytest.raises(qa.CommandError):
        data.append(None)  # a row that is no row
    assert stored(db, "M", "amplitudes", "A", "data") == ROWS


def test_a_view_reads_the_object_as_it_is_now(db):
    amp = db["M"].amplitudes["A"]
    row = amp.data[1]
    amp.data = [[0.0, 0.0], [0.5, 0.25]]
    assert row == [0.5, 0.25] and row[1] == 0.25
    assert len(amp.data) == 2 and [r[0] for r in amp.data] == [0.0, 0.5]
    assert repr(amp.data) == "[[0.0, 0.0], [0.5, 0.25]]"
    with pytest.raises(IndexError):
        amp.data[5]
    plain = amp.data.copy()
    plain[0][0] = 9.0  # a plain list: changing it is a change to the copy alone
    assert type(plain) is list and amp.data[0][0] == 0.0


def test_a_view_given_back_sets_its_value():
    a = qa.TabularAmplitude(data=ROWS)
    b = qa.TabularAmplitude(data=a.data)
    a.data[0][1] = 0.5
    assert b.data == ROWS  # b took the value, not the view
    b.data = a.data
    assert b.data == [[0.0, 0.5], [0.5, 0.8], [1.0, 1.0]]


def test_lists_edit_in_place():
    a = qa.TabularAmplitude(data=ROWS)
    a.baselineCorrection = qa.BaselineCorrection(intervals=[0.5])
    a.baselineCorrection.intervals.append(1.0)
    a.baselineCorrection.intervals += [2.0]
    assert a.to_dict()["baselineCorrection"]["intervals"] == [0.5, 1.0, 2.0]
    with pytest.raises(qa.CommandError):
        a.baselineCorrection.intervals.append("late")
    assert a.baselineCorrection.intervals == [0.5, 1.0, 2.0]


def test_material_tables_read_as_their_rows(db):
    steel = db["M"].materials["Steel"]
    assert isinstance(steel.elastic.table, qa.ListView)
    assert steel.elastic.table == [[210000.0, 0.3]]
    steel.elastic.table[0][0] = 200000.0
    steel.elastic.table.append([190000.0, 0.3])
    assert stored(db, "M", "materials", "Steel", "elastic", "table") == [[200000.0, 0.3], [190000.0, 0.3]]
    detached = qa.Elastic(table=[[70000.0, 0.33]])
    detached.table[0][1] = 0.34
    assert detached.table == [[70000.0, 0.34]] and detached.to_dict()["table"] == [[70000.0, 0.34]]


def test_lists_of_objects_are_tuples_whose_elements_apply_or_refuse():
    o = qa.ObjectiveFunction(objectives=[qa.Objective(designResponse="E", weight=1.0)])
    assert isinstance(o.objectives, tuple)
    with pytest.raises(AttributeError):
        o.objectives.append(qa.Objective())
    with pytest.raises(qa.CommandError) as e:
        o.objectives[0].weight = 2.0  # a copy of the element: refused rather than lost
    assert e.value.message == ('An element of a list of objects inside a detached object is a copy; set the whole '
                               'list (or put the object into a model first) to change "weight"')
    assert e.value.member == "weight"
    assert o.objectives[0].weight == 1.0
    changed = o.objectives[0].copy()
    changed.weight = 2.0
    o.objectives = [changed]
    assert o.objectives[0].weight == 2.0


def test_elements_of_lists_of_objects_in_a_model_change_in_place():
    db = qa.Database()
    task = qa.TopologyTask()
    task.objectiveFunctions["F"] = qa.ObjectiveFunction(objectives=[qa.Objective(designResponse="E", weight=1.0)])
    db.create_model("M").optimizationTasks["T"] = task
    f = db["M"].optimizationTasks["T"].objectiveFunctions["F"]
    f.objectives[0].weight = 3.0
    assert stored(db, "M", "optimizationTasks", "T", "objectiveFunctions", "F", "objectives", "0", "weight") == 3.0


def test_the_engineers_script_keeps_every_edit_in_place(workdir):
    root = pathlib.Path(os.environ.get("QMX_EXAMPLES_DIR", pathlib.Path(__file__).parents[2] / "examples"))
    out = workdir / "engineer.odb"
    run = subprocess.run([sys.executable, str(root / "engineer_model.py"), str(out)], capture_output=True, text=True,
                         env=dict(os.environ), timeout=120)
    assert run.returncode == 0, run.stdout + run.stderr
    assert run.stdout.splitlines()[1:3] == [
        "Bracket/amplitudes/Short-1 The Time-Amplitude table should have at least two rows of data.",
        "Bracket/amplitudes/Short-2 The Time-Amplitude table should have at least two rows of data."]
    m = qa.Database.open(out)["Bracket"]
    assert m.materials["Al-6061"].plastic.table == [[240.0, 0.0], [290.0, 0.08], [310.0, 0.12]]
    assert m.materials["Steel-S355"].elastic.table == [[200000.0, 0.3]]
    assert m.amplitudes["Ramp"].data == [[0.0, 0.0], [1.0, 0.9]]
    assert m.connectorSections["Bushing"].behaviorOptions[0].table == [[25000.0, 25000.0, 90000.0]]
    assert list(m.amplitudes) == ["Ramp"]
