"""The attribute object model for model-building scripts.

    from qmxodbattr import *
    db = Database()
    m = db.create_model("Model-1")
    m.profiles["Rod-10"] = CircularProfile(r=10.0)
    m.profiles["Rod-10"].validate()
    db.save("model.db")

Every class that scripts construct is a Python class of this module under its scripting
constructor name, made at import from the class metadata of the library; its docstring and dir()
list its members with their types and literals.
"""
from . import _core
from ._core import (Database, Model, Repository, Object, Error, ValidationError, CommandError,
                    MemberError, NotFoundError, constructors)

__all__ = ["Database", "Model", "Repository", "Object", "Error", "ValidationError", "CommandError",
           "MemberError", "NotFoundError", "constructors"]


class _Transaction:
    """All of the changes made inside it or none: committed when the block ends, rolled back when
    an exception leaves it (a failed command of the library has already rolled it back)."""

    def __init__(self, db):
        self._db = db

    def __enter__(self):
        self._db._bracket("begin")
        return self._db

    def __exit__(self, exc_type, exc, tb):
        if exc_type is None:
            self._db._bracket("commit")
        elif self._db.in_transaction:
            self._db._bracket("rollback")
        return False


def _transaction(self):
    """with db.transaction(): ... applies every change of the block, or none of them."""
    return _Transaction(self)


Database.transaction = _transaction


def _make_class(ctor):
    members = tuple(_core.class_members(ctor))

    def __init__(self, **values):
        Object.__init__(self)
        self._init_new(ctor, values)

    __init__.__doc__ = _core.class_doc(ctor)
    cls = type(ctor, (Object,), {"__init__": __init__, "__doc__": _core.class_doc(ctor),
                                 "__module__": __name__, "__slots__": (), "scripting_members": members})
    _core._register_class(ctor, cls)
    return cls


for _ctor in _core.constructors():
    if _ctor in globals():
        continue  # a constructor named like one of the module's own classes keeps the module's
    globals()[_ctor] = _make_class(_ctor)
    __all__.append(_ctor)
del _ctor

# A constructor variant makes an object of its class from the same members: the class itself
# under the variant's name.
def _alias_variants():
    for variant, ctor in _core.constructor_variants():
        if variant not in globals() and ctor in globals():
            globals()[variant] = globals()[ctor]
            __all__.append(variant)


_alias_variants()
del _alias_variants
