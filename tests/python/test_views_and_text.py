"""Views of objects inside a model and text arguments no UTF-8 can hold.

A view reads and changes the object it was taken from; once its path holds another object (deleted
and made again, put anew, another class, another file opened) it refuses instead of showing the
new one under the old class. Keys, names and file names with a lone surrogate are refused with the
module's error on every door and change nothing."""
import os

import pytest

import qmxodbattr as qa

SURROGATE = "A text holds a lone surrogate, which has no UTF-8 form"


def stale(label, path):
    return (f"This view of {label} at {path} is stale: the object there was replaced since; "
            "take it from its repository again")


def profile_db():
    db = qa.Database()
    db.create_model("M").profiles["P"] = qa.CircularProfile(r=1.0)
    return db


def replace_by_delete_and_other_class(db, workdir):
    del db["M"].profiles["P"]
    db["M"].profiles["P"] = qa.RectangularProfile(a=1.0, b=2.0)


def replace_by_delete_and_same_class(db, workdir):
    del db["M"].profiles["P"]
    db["M"].profiles["P"] = qa.CircularProfile(r=1.0)


def replace_by_put(db, workdir):
    db["M"].profiles["P"] = qa.CircularProfile(r=1.0)


def replace_by_open(db, workdir):
    other = qa.Database()
    other.create_model("M").profiles["P"] = qa.CircularProfile(r=7.0)
    path = str(workdir / "other.db")
    other.save(path)
    db.execute({"op": "open", "file": path})
    assert db["M"].profiles["P"].r == 7.0


DOORS = [
    ("read", lambda v: v.r),
    ("set", lambda v: setattr(v, "r", 3.0)),
    ("item", lambda v: v["r"]),
    ("repr", repr),
    ("to_dict", lambda v: v.to_dict()),
    ("validate", lambda v: v.validate()),
    ("advise", lambda v: v.advise()),
    ("type_name", lambda v: v.type_name),
]


@pytest.mark.parametrize("replace", [replace_by_delete_and_other_class, replace_by_delete_and_same_class,
                                     replace_by_put, replace_by_open])
def test_a_view_whose_object_was_replaced_refuses_on_every_door(replace, workdir):
    db = profile_db()
    view = db["M"].profiles["P"]
    replace(db, workdir)
    current = db["M"].profiles["P"].to_dict()
    for name, door in DOORS:
        with pytest.raises(qa.CommandError) as e:
            door(view)
        assert str(e.value) == stale("CircularProfile", '["M","profiles","P"]'), name
    assert db["M"].profiles["P"].to_dict() == current  # the refused set changed nothing


def test_a_view_follows_its_object_through_changes_and_undo():
    db = profile_db()
    first, second = db["M"].profiles["P"], db["M"].profiles["P"]
    first.r = 3.0
    assert second.r == 3.0
    second.r = 4.0
    assert first.r == 4.0
    db.undo()
    assert first.r == 3.0 and second.r == 3.0


def test_a_view_of_a_member_object_is_stale_once_the_member_is_replaced():
    db = qa.Database()
    amplitudes = db.create_model("M").amplitudes
    amplitudes["A"] = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    whole = amplitudes["A"]
    whole.data = [[0.0, 0.0], [2.0, 2.0]]  # changed in place: the same object
    assert whole.data == [[0.0, 0.0], [2.0, 2.0]]
    amplitudes["A"] = qa.TabularAmplitude(data=[[0.0, 1.0], [1.0, 0.0]])
    with pytest.raises(qa.CommandError) as e:
        whole.data
    assert str(e.value) == stale("TabularAmplitude", '["M","amplitudes","A"]')


def test_a_view_of_a_deleted_object_refuses():
    db = profile_db()
    view = db["M"].profiles["P"]
    del db["M"].profiles["P"]
    with pytest.raises(qa.CommandError) as e:
        view.r
    assert '"P"' in str(e.value)


def test_lone_surrogates_in_keys_names_and_files_are_refused(workdir):
    db = profile_db()
    model = db["M"]
    profiles = model.profiles
    view = profiles["P"]
    bad = "P\udc80"
    doors = {
        "repository get item": lambda: profiles[bad],
        "repository set item": lambda: profiles.__setitem__(bad, qa.CircularProfile(r=1.0)),
        "repository delete item": lambda: profiles.__delitem__(bad),
        "repository get": lambda: profiles.get(bad),
        "repository in": lambda: bad in profiles,
        "database get item": lambda: db[bad],
        "database delete item": lambda: db.__delitem__(bad),
        "database in": lambda: bad in db,
        "create model": lambda: db.create_model(bad),
        "model item": lambda: model[bad],
        "model attribute": lambda: getattr(model, bad),
        "object item": lambda: view[bad],
        "object set item": lambda: view.__setitem__(bad, 2.0),
        "object attribute": lambda: getattr(view, bad),
        "object set attribute": lambda: setattr(view, bad, 2.0),
        "save": lambda: db.save(str(workdir) + "/" + bad + ".db"),
        "open": lambda: qa.Database.open(str(workdir) + "/" + bad + ".db"),
    }
    for name, door in doors.items():
        with pytest.raises(qa.CommandError) as e:
            door()
        assert str(e.value) == SURROGATE, name
    assert db.keys() == ["M"] and profiles.keys() == ["P"] and view.r == 1.0
    assert os.listdir(workdir) == []
    # Keys of another type are still the wrong type, not text.
    with pytest.raises(TypeError):
        profiles[14]
