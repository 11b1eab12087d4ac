"""Values no script should be able to crash the interpreter with: values that contain
themselves, nesting beyond the command layer's limit, lone surrogates, and objects made by
`__new__` without `__init__`. Each is refused with the module's error and changes nothing."""
import threading

import pytest

import qmxodbattr as qa

MAX_DEPTH = 64  # the command reader's limit on nested arrays and objects
TOO_DEEP = f"The value nests lists and mappings more than {MAX_DEPTH} levels deep"


def nested(levels):
    v = 0.0
    for _ in range(levels):
        v = [v]
    return v


def self_list():
    v = [[0.0, 0.0]]
    v.append(v)
    return v


def self_dict():
    v = {"type": "TabularAmplitude"}
    v["data"] = v
    return v


@pytest.mark.parametrize("value, message", [
    (self_list(), "A value of type list contains itself"),
    (self_dict(), "A value of type dict contains itself"),
    (nested(MAX_DEPTH + 1), TOO_DEEP),
    (nested(50_000), TOO_DEEP),
    ({"a": nested(MAX_DEPTH)}, TOO_DEEP),
    ("\ud800", "A text holds a lone surrogate, which has no UTF-8 form"),
    (["x", "a\udfffb"], "A text holds a lone surrogate, which has no UTF-8 form"),
])
def test_unconvertible_values_are_refused_on_every_door(value, message):
    db = qa.Database()
    model = db.create_model("M")
    model.amplitudes["A"] = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    doors = [
        lambda: qa.TabularAmplitude(data=value),
        lambda: setattr(model.amplitudes["A"], "data", value),
        lambda: db.execute({"op": "set", "path": ["M", "amplitudes", "A", "data"], "value": value}),
    ]
    for door in doors:
        with pytest.raises(qa.CommandError) as e:
            door()
        assert str(e.value) == message
    assert model.amplitudes["A"].data == [[0.0, 0.0], [1.0, 1.0]]


def test_nesting_at_the_limit_is_converted():
    # The keywords' mapping and 63 lists are 64 levels: they reach the command layer, which
    # judges the value (not the converter's refusal).
    with pytest.raises(qa.Error) as e:
        qa.TabularAmplitude(data=nested(MAX_DEPTH - 1))
    assert str(e.value) != TOO_DEEP


def test_deep_nesting_in_a_thread_is_refused():
    # Threads have smaller stacks than the main thread; the limit holds there too.
    caught = []

    def convert():
        try:
            qa.TabularAmplitude(data=nested(100_000))
        except qa.CommandError as e:
            caught.append(str(e))

    t = threading.Thread(target=convert)
    t.start()
    t.join()
    assert caught == [TOO_DEEP]


OBJECT_HINT = "An object is made by the constructor of its class, such as CircularProfile(r=1.0)"


@pytest.mark.parametrize("cls, use", [
    (qa.CircularProfile, lambda o: o.r),
    (qa.CircularProfile, lambda o: setattr(o, "r", 1.0)),
    (qa.CircularProfile, lambda o: o.validate()),
    (qa.TabularAmplitude, lambda o: o == qa.TabularAmplitude()),
    (qa.Object, lambda o: o.to_dict()),
    (qa.Object, lambda o: o.copy()),
])
def test_an_object_made_without_init_refuses_every_use(cls, use):
    o = cls.__new__(cls)
    assert type(o) is cls
    with pytest.raises(qa.CommandError) as e:
        use(o)
    assert str(e.value) == OBJECT_HINT
    assert not hasattr(o, "r")  # a member read refuses as a MemberError, which hasattr() expects


def test_a_database_made_without_init_is_usable(workdir):
    db = qa.Database.__new__(qa.Database)
    assert len(db) == 0
    db.create_model("M").profiles["P"] = qa.CircularProfile(r=2.0)
    db.save(str(workdir / "new.db"))
    assert qa.Database.open(str(workdir / "new.db"))["M"].profiles["P"].r == 2.0


@pytest.mark.parametrize("cls, message", [
    (qa.Model, "A Model is not made directly; it is reached through its database, such as db[\"Model-1\"]"),
    (qa.Repository, "A Repository is not made directly; it is reached through its model, such as "
                    "db[\"Model-1\"].profiles"),
])
def test_models_and_repositories_are_not_made_directly(cls, message):
    with pytest.raises(qa.CommandError) as e:
        cls.__new__(cls)
    assert str(e.value) == message


def test_size_and_lookup_of_a_repository_follow_its_changes():
    db = qa.Database()
    profiles = db.create_model("M").profiles
    cases = []  # (keys put, keys deleted)
    for n in range(0, 30, 7):
        profiles[f"P-{n}"] = qa.CircularProfile(r=1.0 + n)
        cases.append(f"P-{n}")
    del profiles["P-7"]
    cases.remove("P-7")
    assert len(profiles) == len(cases) == len(profiles.keys())
    for key in ["P-0", "P-7", "P-14", "p-14", "", "P-14 ", "P-280"]:
        assert (key in profiles) == (key in cases), key
        got = profiles.get(key, "none")
        assert got == "none" if key not in cases else got.r == 1.0 + int(key[2:])
    assert 14 not in profiles  # not a name: no element, no error
    with pytest.raises(qa.CommandError) as e:
        "\ud800" in profiles
    assert str(e.value) == "A text holds a lone surrogate, which has no UTF-8 form"
