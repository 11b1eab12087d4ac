#!/usr/bin/env python3
"""Writes the type stubs (__init__.pyi) of the qmxodbattr package from the class metadata of the
built module: every constructor with its keyword members, their types and literals.

    PYTHONPATH=<build>/python python3 gen_stubs.py OUT
"""
import keyword
import sys

import qmxodbattr as qa
from qmxodbattr import _core

HEAD = '''"""Type stubs of the attribute object model, generated from its class metadata."""
import os
from collections.abc import MutableMapping, MutableSequence, Iterator, Sequence
from typing import Any, Literal, TypeVar

__version__: str
_T = TypeVar("_T", bound="Object")
_Path = str | os.PathLike[str]

def constructors() -> list[str]: ...

class Error(Exception):
    message: str
    kind: str
    file: str
    line: int
    path: list[str] | None
    member: str | None
    candidates: list[str] | None
    failures: list[dict[str, Any]] | None
class ValidationError(Error): ...
class CommandError(Error): ...
class MemberError(CommandError, AttributeError): ...
class NotFoundError(CommandError, KeyError): ...
class KeywordError(MemberError, TypeError): ...

class ListView(MutableSequence[Any]):
    def __getitem__(self, index: Any) -> Any: ...
    def __setitem__(self, index: Any, value: Any) -> None: ...
    def __delitem__(self, index: Any) -> None: ...
    def __len__(self) -> int: ...
    def insert(self, index: int, value: Any) -> None: ...
    def copy(self) -> list[Any]: ...

class ObjectListView(ListView):
    def __getitem__(self, index: Any) -> Any: ...
    def copy(self) -> list[Any]: ...

class TableView(ListView):
    allowEmptyFirstRow: bool
    def members(self) -> list[str]: ...
    def __getattr__(self, name: str) -> Any: ...

class Object:
    scripting_members: tuple[str, ...]
    type_name: str
    class_name: str
    path: list[str] | None
    detached: bool
    def validate(self) -> None: ...
    def advise(self) -> list[dict[str, Any]]: ...
    def members(self) -> list[str]: ...
    def to_dict(self) -> dict[str, Any]: ...
    def copy(self: _T) -> _T: ...
    def __getitem__(self, name: str) -> Any: ...
    def __setitem__(self, name: str, value: Any) -> None: ...

class Repository(MutableMapping[str, Any]):
    path: list[str] | None
    def __getitem__(self, key: str) -> Any: ...
    def __setitem__(self, key: str, value: Object) -> None: ...
    def __delitem__(self, key: str) -> None: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...
    def advise(self) -> list[dict[str, Any]]: ...
    def validate(self) -> dict[str, Any] | None: ...
    def to_dict(self) -> dict[str, Any]: ...

class Model:
    name: str
    def repositories(self) -> list[str]: ...
    def __getattr__(self, name: str) -> Any: ...
    def __getitem__(self, name: str) -> Any: ...
    def advise(self) -> list[dict[str, Any]]: ...
    def validate(self) -> dict[str, Any]: ...
    def to_dict(self) -> dict[str, Any]: ...

class _Transaction:
    def __enter__(self) -> Database: ...
    def __exit__(self, *exc: Any) -> bool: ...

class Database:
    in_transaction: bool
    def __init__(self) -> None: ...
    @staticmethod
    def open(path: _Path) -> Database: ...
    def save(self, path: _Path, overwrite: bool = ...) -> None: ...
    def create_model(self, name: str) -> Model: ...
    def keys(self) -> list[str]: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...
    def __contains__(self, name: object) -> bool: ...
    def __getitem__(self, name: str) -> Model: ...
    def __delitem__(self, name: str) -> None: ...
    def advise(self) -> list[dict[str, Any]]: ...
    def undo(self) -> dict[str, int]: ...
    def redo(self) -> dict[str, int]: ...
    def transaction(self) -> _Transaction: ...
    def validate(self) -> dict[str, Any]: ...
    def execute(self, command: dict[str, Any]) -> dict[str, Any]: ...
    def to_dict(self) -> dict[str, Any]: ...
'''

SCALARS = {"int": "int", "double": "float", "bool": "bool", "string": "str", "region": "str"}
LISTS = {"list of ints": "int", "list of doubles": "float", "list of strings": "str", "list of regions": "str",
         "list of bools": "bool"}
# Names the base classes already use: such a member is reached with obj["name"] only.
TAKEN = {name for name in dir(qa.Object) if not name.startswith("__")} | {"scripting_members"}


def literal(texts):
    return "Literal[" + ", ".join(repr(t) for t in texts) + "]"


def union(*parts):
    seen = []
    for p in parts:
        if p and p not in seen:
            seen.append(p)
    return " | ".join(seen)


def objects(field, known):
    names = [c for c in field["constructors"] if c in known]
    return union(*names) if names else "Object"


def type_of(field, known):
    """The type a member reads and takes (the two are one in a stub's attribute)."""
    kind, lits = field["type"], field["literals"]
    none = "None" if field["optional"] else ""
    if kind in SCALARS:
        return union(SCALARS[kind], literal(lits) if lits else "", none)
    if kind == "enumeration":
        return union(literal(lits) if lits else "str", none)
    if kind in LISTS:
        return f"Sequence[{union(LISTS[kind], literal(lits) if lits else '')}]"
    if kind == "list of enumerations":
        return f"Sequence[{literal(lits) if lits else 'str'}]"
    if kind == "table of doubles":
        return "Sequence[Sequence[float]]"
    if kind == "object":
        if field["container"]:
            return "Repository"
        if field["table"]:
            return union("Sequence[Sequence[float]]", objects(field, known), none)
        return union(objects(field, known), none)
    if kind == "list of objects":
        return f"Sequence[{objects(field, known)} | None]"
    return "Any"


def docstring(text):
    """A docstring literal of the text (an attribute's docstring, as editors show it)."""
    return repr(text)


def main(out):
    known = set(_core.constructors())
    lines = [HEAD]
    for ctor in _core.constructors():
        if ctor in {"Database", "Model", "Repository", "Object"}:
            continue
        fields = _core._class_fields(ctor)
        summary = _core._class_summary(ctor) or ctor
        lines.append(f"class {ctor}(Object):")
        lines.append(f"    {docstring(summary)}")
        params = []
        for f in fields:
            t = type_of(f, known)
            usable = f["name"].isidentifier() and not keyword.iskeyword(f["name"])
            if usable and f["name"] not in TAKEN:
                lines.append(f"    {f['name']}: {t}")
                if f["meaning"]:
                    lines.append(f"    {docstring(f['meaning'])}")
            if usable:
                params.append(f"{f['name']}: {t} = ...")
        sig = ", ".join(["self", "*"] + params) if params else "self"
        lines.append(f"    def __init__({sig}) -> None: ...")
        lines.append("")
    with open(out, "w", encoding="utf-8") as f:
        f.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main(sys.argv[1])
