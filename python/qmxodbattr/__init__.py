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
                    MemberError, NotFoundError, KeywordError, constructors)

__all__ = ["Database", "Model", "Repository", "Object", "Error", "ValidationError", "CommandError",
           "MemberError", "NotFoundError", "KeywordError", "ListView", "ObjectListView", "TableView",
           "constructors", "__version__"]


from ._version import __version__
from ._views import ListView, ObjectListView, TableView
from . import _surface

_core._register_list_view(ListView, ObjectListView, TableView)
_surface.install()


def _make_class(ctor):
    members = tuple(_core.class_members(ctor))

    # __init__ (members by keyword, in their order) is set by _register_class below.
    namespace = {"__doc__": _core.class_doc(ctor), "__module__": __name__,
                 "__slots__": (), "scripting_members": members}
    # Members as properties, so that reading and setting one skips Python's failed attribute
    # lookup; a member named like a method of Object stays reached by obj["name"].
    for name, prop in _core._member_properties(ctor).items():
        if not hasattr(Object, name) and name.isidentifier():
            namespace[name] = prop
    cls = type(ctor, (Object,), namespace)
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
