"""The Python side of the module's classes: repositories as mutable mappings, transactions,
copies and pickles of objects."""
from collections.abc import MutableMapping

from . import _core

_MISSING = object()


def _pop(self, key, default=_MISSING):
    """Removes the element under key and returns it (detached); default, or KeyError, when absent."""
    if key not in self:
        if default is _MISSING:
            return self[key]  # raises NotFoundError with the repository's own message
        return default
    value = self[key].copy()
    del self[key]
    return value


def _popitem(self):
    """Removes the last element and returns (key, element)."""
    keys = self.keys()
    if not keys:
        raise KeyError("popitem(): the repository is empty")
    return keys[-1], self.pop(keys[-1])


def _setdefault(self, key, default=None):
    """The element under key; puts default there first when it is absent."""
    if key not in self:
        self[key] = default
    return self[key]


def _update(self, other=(), **more):
    """Puts every element of a mapping (or of (key, value) pairs) and of the keywords."""
    items = other.items() if hasattr(other, "items") else other
    for key, value in items:
        self[key] = value
    for key, value in more.items():
        self[key] = value


def _clear(self):
    """Removes every element."""
    for key in self.keys():
        del self[key]


def _repository_eq(self, other):
    if not isinstance(other, (MutableMapping, dict)) and not isinstance(other, _core.Repository):
        return NotImplemented
    return dict(self.items()) == dict(other.items())


def _copy_object(self, memo=None):
    return self.copy()


def _restore(data):
    """A detached object from the data of to_dict() (what a pickle holds)."""
    return _core._from_dict(data)


def _reduce_object(self):
    if not self.detached:
        raise TypeError("An object inside a database is pickled as a detached copy: pickle obj.copy()")
    return (_restore, (self.to_dict(),))


class Transaction:
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
    return Transaction(self)


def install():
    repo = _core.Repository
    repo.pop = _pop
    repo.popitem = _popitem
    repo.setdefault = _setdefault
    repo.update = _update
    repo.clear = _clear
    repo.__eq__ = _repository_eq
    repo.__hash__ = None
    MutableMapping.register(repo)
    obj = _core.Object
    obj.__copy__ = _copy_object
    obj.__deepcopy__ = _copy_object
    obj.__reduce__ = _reduce_object
    _core.Database.transaction = _transaction
