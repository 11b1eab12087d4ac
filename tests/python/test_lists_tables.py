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


def objective(response, weight=1.0):
    return qa.Objective(designResponse=response, weight=weight)


def responses(function):
    return [o["designResponse"] for o in function.to_dict()["objectives"]]


def function_in_a_model():
    db = qa.Database()
    task = qa.TopologyTask()
    task.objectiveFunctions["F"] = qa.ObjectiveFunction(objectives=[objective("A"), objective("B")])
    db.create_model("M").optimizationTasks["T"] = task
    return db, db["M"].optimizationTasks["T"].objectiveFunctions["F"]


def function_detached():
    return None, qa.ObjectiveFunction(objectives=[objective("A"), objective("B")])


# (edit of the list, responses after it): each applied to a list in a model and in a detached object.
OBJECT_LIST_EDITS = [
    (lambda lst: lst.append(objective("C")), ["A", "B", "C"]),
    (lambda lst: lst.insert(0, objective("C")), ["C", "A", "B"]),
    (lambda lst: lst.__delitem__(0), ["B"]),
    (lambda lst: lst.__delitem__(slice(None)), []),
    (lambda lst: lst.__setitem__(-1, objective("C")), ["A", "C"]),
    (lambda lst: lst.__setitem__(slice(0, 1), [objective("C"), objective("D")]), ["C", "D", "B"]),
    (lambda lst: lst.extend([objective("C")]), ["A", "B", "C"]),
    (lambda lst: lst.reverse(), ["B", "A"]),
    (lambda lst: lst.sort(key=lambda o: o.designResponse, reverse=True), ["B", "A"]),
    (lambda lst: lst.remove(objective("A")), ["B"]),
    (lambda lst: lst.__iadd__([objective("C")]), ["A", "B", "C"]),
]


@pytest.mark.parametrize("where", [function_in_a_model, function_detached])
@pytest.mark.parametrize("edit,after", OBJECT_LIST_EDITS)
def test_a_list_of_objects_is_edited_in_place(where, edit, after):
    db, f = where()
    edit(f.objectives)
    assert responses(f) == after
    assert [o.designResponse for o in f.objectives] == after
    if db is not None:
        stored_list = stored(db, "M", "optimizationTasks", "T", "objectiveFunctions", "F", "objectives")
        assert [o["designResponse"] for o in stored_list] == after


@pytest.mark.parametrize("where", [function_in_a_model, function_detached])
def test_a_list_of_objects_reads_as_its_elements(where):
    _, f = where()
    objectives = f.objectives
    assert isinstance(objectives, qa.ObjectListView) and len(objectives) == 2
    assert objectives == [objective("A"), objective("B")] and objectives != [objective("B"), objective("A")]
    assert objectives[-1].designResponse == "B" and objective("B") in objectives
    assert repr(objectives) == "[Objective(designResponse='A'), Objective(designResponse='B')]"
    with pytest.raises(IndexError):
        objectives[2]
    # A slice, copy() and pop() give detached copies.
    part = objectives[1:]
    assert [o.detached for o in part] == [True] and part == [objective("B")]
    popped = objectives.pop(0)
    assert popped.detached and popped == objective("A") and responses(f) == ["B"]
    plain = objectives.copy()
    plain[0].weight = 5.0
    assert type(plain) is list and objectives[0].weight == 1.0


@pytest.mark.parametrize("where", [function_in_a_model, function_detached])
def test_a_refused_list_edit_raises_and_changes_nothing(where):
    _, f = where()
    with pytest.raises(qa.CommandError) as e:
        f.objectives.append(qa.CircularProfile(r=1.0))  # not an objective
    assert e.value.message == "CircularProfile cannot stand where Objective is expected"
    assert e.value.member == "2"  # the position of the refused element in the list
    with pytest.raises(qa.CommandError) as e:
        f.objectives.append(3.0)
    assert e.value.message == ('The member "objectives" of ObjectiveFunction takes an array of objects, '
                               'not the number 3.0 at element 2')
    with pytest.raises(ValueError):
        f.objectives.remove(objective("Z"))
    assert responses(f) == ["A", "B"]


def test_an_element_of_a_detached_list_refuses_a_change_and_is_replaced_instead():
    _, f = function_detached()
    with pytest.raises(qa.CommandError) as e:
        f.objectives[0].weight = 2.0  # a copy of the element: refused rather than lost
    assert e.value.message == ('An element of a list of objects inside a detached object is a copy; set the whole '
                               'list (or put the object into a model first) to change "weight"')
    assert e.value.member == "weight"
    changed = f.objectives[0].copy()
    changed.weight = 2.0
    f.objectives[0] = changed
    assert [o.weight for o in f.objectives] == [2.0, 1.0]


def test_a_list_of_objects_survives_save_and_reopen(workdir):
    db, f = function_in_a_model()
    f.objectives.insert(1, objective("C", 3.0))
    db.save(workdir / "objectives.odb")
    back = qa.Database.open(workdir / "objectives.odb")["M"].optimizationTasks["T"].objectiveFunctions["F"]
    assert back.objectives == [objective("A"), objective("C", 3.0), objective("B")]


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


@pytest.mark.parametrize("where", ["model", "detached"])
def test_a_table_flag_is_an_attribute_of_the_table_and_round_trips(where, workdir):
    rows = [[0.0, 0.0], [210000.0, 0.3]]
    elastic = qa.Elastic(table=rows)
    db = qa.Database()
    m = db.create_model("M")
    if where == "model":
        m.materials["Steel"] = qa.Material(elastic=elastic)
        elastic = m.materials["Steel"].elastic
    table = elastic.table
    assert isinstance(table, qa.TableView) and table == rows
    assert table.allowEmptyFirstRow is False and table.members() == ["allowEmptyFirstRow"]
    assert "allowEmptyFirstRow" in dir(table)
    with pytest.raises(qa.ValidationError) as e:
        elastic.validate()
    assert e.value.member == "table"
    table.allowEmptyFirstRow = True
    assert elastic.table.allowEmptyFirstRow is True and elastic.table == rows
    elastic.validate()  # the first row may now be all zeros
    assert elastic.to_dict()["table"] == {"table": rows, "allowEmptyFirstRow": True}
    # Editing the rows in place keeps the flag; the flag refuses what is no boolean and a name it lacks.
    elastic.table[1][0] = 200000.0
    elastic.table += [[190000.0, 0.3]]
    del elastic.table[2]
    assert elastic.table.allowEmptyFirstRow is True
    with pytest.raises(qa.CommandError) as e:
        table.allowEmptyFirstRow = "yes"
    assert e.value.member == "allowEmptyFirstRow" and elastic.table.allowEmptyFirstRow is True
    with pytest.raises(AttributeError):
        table.allowEmptyRows = True
    with pytest.raises(AttributeError):
        table.allowEmptyRows
    if where == "detached":
        m.materials["Steel"] = qa.Material(elastic=elastic)
    db.save(workdir / "flag.odb")
    back = qa.Database.open(workdir / "flag.odb")["M"].materials["Steel"].elastic
    assert back.table.allowEmptyFirstRow is True and back.table == [[0.0, 0.0], [200000.0, 0.3]]
    back.table.allowEmptyFirstRow = False
    with pytest.raises(qa.ValidationError):
        back.validate()
    # Rows assigned whole make a new table, as the command layer's set does: the flag is false again.
    back.table.allowEmptyFirstRow = True
    back.table = [[0.0, 0.0], [1.0, 0.3]]
    assert back.table.allowEmptyFirstRow is False


def test_extending_a_view_in_place_is_one_step_of_the_history():
    db, f = function_in_a_model()
    amp = db["M"]
    amp.amplitudes["A"] = qa.TabularAmplitude(data=ROWS)
    depth = db.undo()["undo"] + 1  # the depth of the history before the edits
    db.redo()
    amp.amplitudes["A"].data += [[2.0, 0.0]]
    f.objectives += [objective("C")]
    assert db.undo() == {"undo": depth + 1, "redo": 1} and responses(f) == ["A", "B"]
    assert db.undo() == {"undo": depth, "redo": 2} and amp.amplitudes["A"].data == ROWS
