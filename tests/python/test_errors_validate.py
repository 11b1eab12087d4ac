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
