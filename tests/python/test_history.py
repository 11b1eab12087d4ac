"""The modules' own refusals with the command layer's context, undo and redo, transactions."""
import pytest

import qmxodbattr as qa


def _model():
    db = qa.Database()
    return db, db.create_model("M")


@pytest.mark.parametrize("reach, message, path, member", [
    (lambda m: m.constraints["NoSuch"], "The Cosntraint container is empty.", ["M", "constraints"], "NoSuch"),
    (lambda m: m.amplitudes["A-1"], "The amplitude container is empty.", ["M", "amplitudes"], "A-1"),
    (lambda m: m.discreteFields["DF-1"], "Given discrete field does not exist.", ["M", "discreteFields"], "DF-1"),
    (lambda m: m.materials["Steel"].elastik, "Unknown material option", None, "elastik"),
    (lambda m: m.materials["Steel"].elastic.failStres, "Unknown material option name for elastic", None, "failStres"),
])
def test_module_refusals_reach_python_with_their_context(reach, message, path, member):
    db, m = _model()
    m.materials["Steel"] = qa.Material(elastic=qa.Elastic())
    with pytest.raises(qa.Error) as e:
        reach(m)
    assert e.value.message == message
    assert e.value.member == member
    assert e.value.candidates is not None
    if path is not None:
        assert e.value.path == path


def test_undo_redo_and_transactions():
    db, m = _model()
    m.profiles["Rod"] = qa.CircularProfile(r=1.0)
    m.profiles["Rod"].r = 2.0
    assert db.undo() == {"undo": 2, "redo": 1}
    assert m.profiles["Rod"].r == 1.0
    db.redo()
    assert m.profiles["Rod"].r == 2.0
    with pytest.raises(qa.CommandError) as e:
        db.redo()
    assert e.value.message == "There is nothing to redo"

    with db.transaction():
        m.profiles["Box"] = qa.BoxProfile()
        del m.profiles["Rod"]
    assert sorted(m.profiles) == ["Box"]
    db.undo()  # the whole transaction
    assert sorted(m.profiles) == ["Rod"]

    with pytest.raises(RuntimeError):
        with db.transaction():
            m.profiles["Box"] = qa.BoxProfile()
            raise RuntimeError("the script changed its mind")
    assert sorted(m.profiles) == ["Rod"] and not db.in_transaction

    with pytest.raises(qa.ValidationError):
        with db.transaction():
            m.profiles["Box"] = qa.BoxProfile()
            m.constraints["NoSuch"].validate()
    assert sorted(m.profiles) == ["Rod"] and not db.in_transaction


def test_unspecified_and_literal_members_read_as_none_and_literals():
    db, m = _model()
    m.connectorSections["S"] = qa.ConnectorSection(behaviorOptions=[qa.ConnectorLock()])
    lock = m.connectorSections["S"].behaviorOptions[0]
    assert lock.lockingComponent == "ALL" and lock.minMotion is None
    lock.minMotion = 0.5
    lock.lockingComponent = 2
    assert lock.minMotion == 0.5 and lock.lockingComponent == 2
    lock.minMotion = None
    assert lock.minMotion is None
