"""Errors as Python code expects them: every failure of a validation reported, the member an error
concerns, and the built-in exception each kind of lookup also is."""
import pytest

import qmxodbattr as qa

DECREASING = "The Time-Amplitude table should have at least two rows of data."


def broken_model():
    db = qa.Database()
    m = db.create_model("M")
    m.amplitudes["A-ok"] = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    m.amplitudes["B-short"] = qa.TabularAmplitude(data=[[0.0, 0.0]])
    m.amplitudes["C-short"] = qa.TabularAmplitude(data=[[1.0, 0.0]])
    return db, m


@pytest.mark.parametrize("scope", ["database", "model", "repository"])
def test_validate_reports_every_failure_first_first(scope):
    db, m = broken_model()
    target = {"database": db, "model": m, "repository": m.amplitudes}[scope]
    with pytest.raises(qa.ValidationError) as e:
        target.validate()
    failures = e.value.failures
    assert [f["path"] for f in failures] == [["M", "amplitudes", "B-short"], ["M", "amplitudes", "C-short"]]
    assert [f["message"] for f in failures] == [DECREASING, DECREASING]
    assert all(set(f) == {"path", "member", "message", "kind", "file", "line"} for f in failures)
    assert e.value.path == failures[0]["path"] and e.value.message == failures[0]["message"]
    # The same list as the command layer's own answer.
    r = db.execute({"op": "validate", "path": []})
    assert [(f["path"], f["message"]) for f in r["error"]["failures"]] == [(f["path"], f["message"]) for f in failures]


def test_a_valid_model_validates_without_failures():
    db = qa.Database()
    db.create_model("M").amplitudes["A"] = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    assert db.validate()["validated"] >= 1


# (action, built-in class, member): each error also is the built-in exception Python code expects,
# and carries the member it concerns.
CASES = [
    (lambda: qa.CircularProfile(radius=1.0), TypeError, "radius"),
    (lambda: qa.CircularProfile(radius=1.0), AttributeError, "radius"),
    (lambda: qa.CircularProfile().radius, AttributeError, "radius"),
    (lambda: setattr(qa.CircularProfile(), "radius", 1.0), AttributeError, "radius"),
    (lambda: setattr(qa.CircularProfile(), "r", "wide"), qa.CommandError, "r"),
    (lambda: setattr(qa.PipeProfile(), "integrationScheme", "thick"), qa.CommandError, "integrationScheme"),
]


@pytest.mark.parametrize("action,builtin,member", CASES)
def test_errors_are_the_builtin_kind_and_carry_the_member(action, builtin, member):
    with pytest.raises(builtin) as e:
        action()
    assert isinstance(e.value, qa.Error)
    assert e.value.member == member


def test_a_keyword_typo_lists_the_members_and_makes_nothing():
    with pytest.raises(qa.KeywordError) as e:
        qa.CircularProfile(r=2.0, radius=1.0)
    assert "r" in e.value.candidates
    assert isinstance(e.value, TypeError) and isinstance(e.value, qa.MemberError)


def test_errors_of_a_model_carry_the_member():
    db = qa.Database()
    db.create_model("M").profiles["P"] = qa.CircularProfile(r=1.0)
    p = db["M"].profiles["P"]
    with pytest.raises(qa.CommandError) as e:
        p.r = "wide"
    assert e.value.member == "r" and e.value.path == ["M", "profiles", "P"]
    with pytest.raises(KeyError):
        db["M"].profiles["Q"]
    assert p.r == 1.0


ZERO_ROW = "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s)."
BAD_COMPONENT = "Specified components must be between 1 and 6."


def model_with_member_failures():
    """A material whose elastic option fails, a connector section whose second behavior option
    fails, a profile failing a rule of its own, and an amplitude failing one of its own."""
    db = qa.Database()
    m = db.create_model("M")
    m.materials["Steel"] = qa.Material(elastic=qa.Elastic(table=[[0.0, 0.0]]))
    m.connectorSections["Bushing"] = qa.ConnectorSection(behaviorOptions=[
        qa.ConnectorElasticity(components=[1], table=[[1.0]]), qa.ConnectorElasticity(components=[7], table=[[1.0]])])
    m.profiles["Rod"] = qa.CircularProfile(r=-1.0)
    m.amplitudes["Short"] = qa.TabularAmplitude(data=[[0.0, 0.0]])
    return db, m


# (path, member): the member whose object raised the failure; None where the rule is the object's own.
MEMBER_FAILURES = [
    (["M", "amplitudes", "Short"], None),
    (["M", "connectorSections", "Bushing"], "behaviorOptions"),
    (["M", "materials", "Steel"], "elastic"),
    (["M", "profiles", "Rod"], None),
]


@pytest.mark.parametrize("scope", ["database", "model"])
def test_each_failure_names_the_member_whose_object_failed(scope):
    db, m = model_with_member_failures()
    with pytest.raises(qa.ValidationError) as e:
        (db if scope == "database" else m).validate()
    got = sorted((f["path"], f["member"]) for f in e.value.failures)
    assert got == MEMBER_FAILURES
    first = e.value.failures[0]
    assert (e.value.path, e.value.member) == (first["path"], first["member"])
    # The tool's answer carries the same member, and none where the rule is the object's own.
    r = db.execute({"op": "validate", "path": []})
    assert sorted((f["path"], f.get("member")) for f in r["error"]["failures"]) == MEMBER_FAILURES
    messages = {tuple(f["path"]): f["message"] for f in e.value.failures}
    assert messages[("M", "materials", "Steel")] == ZERO_ROW
    assert messages[("M", "connectorSections", "Bushing")] == BAD_COMPONENT


@pytest.mark.parametrize("make,member,message", [
    (lambda: qa.Material(elastic=qa.Elastic(table=[[0.0, 0.0]])), "elastic", ZERO_ROW),
    (lambda: qa.Elastic(table=[[0.0, 0.0]]), "table", ZERO_ROW),
    (lambda: qa.ConnectorSection(behaviorOptions=[qa.ConnectorElasticity(components=[7], table=[[1.0]])]),
     "behaviorOptions", BAD_COMPONENT),
    (lambda: qa.CircularProfile(r=-1.0), None, "The radius must be greater than zero."),
])
def test_an_object_names_the_failing_member_bound_or_detached(make, member, message):
    obj = make()
    with pytest.raises(qa.ValidationError) as e:
        obj.validate()
    assert (e.value.message, e.value.member) == (message, member)
    # The same object in a model: the same message and member, with the object's path.
    repository = {"Material": "materials", "ConnectorSection": "connectorSections", "CircularProfile": "profiles"}
    if obj.type_name in repository:
        m = qa.Database().create_model("M")
        m[repository[obj.type_name]]["X"] = obj
        with pytest.raises(qa.ValidationError) as bound:
            m[repository[obj.type_name]]["X"].validate()
        assert (bound.value.message, bound.value.member) == (message, member)
        assert bound.value.path == ["M", repository[obj.type_name], "X"]


def test_a_detached_object_reports_what_it_holds_as_a_model_would():
    """A task validates the design responses it holds: its failure names that container, and the
    element reports it again under its own path, detached (paths from the task) as in a model."""
    task = qa.TopologyTask()
    task.objectiveFunctions["F"] = qa.ObjectiveFunction(objectives=[])
    task.designResponses["R"] = qa.SingleTermDesignResponse()
    expected = [([], "designResponses", "Identifier must be specified."),
                (["designResponses", "R"], "request", "Identifier must be specified."),
                (["objectiveFunctions", "F"], None, "The objective list must contain at least 1 unsuppressed entry.")]
    with pytest.raises(qa.ValidationError) as detached:
        task.validate()
    assert [(f["path"], f["member"], f["message"]) for f in detached.value.failures] == expected
    assert (detached.value.path, detached.value.member) == ([], "designResponses")
    with pytest.raises(qa.ValidationError) as element:
        task.designResponses["R"].validate()
    assert [(f["path"], f["member"]) for f in element.value.failures] == [(["designResponses", "R"], "request")]
    m = qa.Database().create_model("M")
    m.optimizationTasks["T"] = task
    with pytest.raises(qa.ValidationError) as bound:
        m.optimizationTasks["T"].validate()
    prefix = ["M", "optimizationTasks", "T"]
    assert [(f["path"], f["member"], f["message"]) for f in bound.value.failures] == [
        (prefix + path, member, message) for path, member, message in expected]
