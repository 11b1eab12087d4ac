"""Lists and tables of objects seen in place."""
from collections.abc import MutableSequence


class ListView(MutableSequence):
    """A list or table member of an object, seen in place: every read goes to the object as it is
    now, and every change (to the list, or to a row of a table) is written back as the whole
    member, checked as any assignment is. So an edit either takes effect or raises with the
    system's message; it is never lost. Compares equal to a list with the same elements."""

    __slots__ = ("_owner", "_member", "_at")

    def __init__(self, owner, member, at=()):
        self._owner = owner
        self._member = member
        self._at = at

    def _snapshot(self):
        value = self._owner._value(self._member)
        for i in self._at:
            value = value[i]
        return value

    def _edit(self, change):
        whole = self._owner._value(self._member)
        here = whole
        for i in self._at:
            here = here[i]
        change(here)
        self._owner[self._member] = whole

    def __len__(self):
        return len(self._snapshot())

    def __getitem__(self, index):
        value = self._snapshot()
        if isinstance(index, slice):
            return value[index]  # a slice is a copy, as a list's is
        item = value[index]
        if isinstance(item, list):
            return ListView(self._owner, self._member, self._at + (range(len(value))[index],))
        return item

    def __iter__(self):
        value = self._snapshot()
        for i, item in enumerate(value):
            yield ListView(self._owner, self._member, self._at + (i,)) if isinstance(item, list) else item

    def __setitem__(self, index, item):
        if isinstance(item, ListView):
            item = item._snapshot()

        def change(here):
            here[index] = item
        self._edit(change)

    def __delitem__(self, index):
        def change(here):
            del here[index]
        self._edit(change)

    def insert(self, index, item):
        if isinstance(item, ListView):
            item = item._snapshot()
        self._edit(lambda here: here.insert(index, item))

    # Whole-list operations as one write of plain values: the mixins' element-wise versions would
    # move rows as views, which read the rows already moved.
    def reverse(self):
        self._edit(lambda here: here.reverse())

    def sort(self, *, key=None, reverse=False):
        self._edit(lambda here: here.sort(key=key, reverse=reverse))

    def extend(self, items):
        items = [i._snapshot() if isinstance(i, ListView) else i for i in items]
        self._edit(lambda here: here.extend(items))

    def __iadd__(self, items):
        self.extend(items)
        return self

    def pop(self, index=-1):
        popped = []
        self._edit(lambda here: popped.append(here.pop(index)))
        return popped[0]

    def remove(self, item):
        if isinstance(item, ListView):
            item = item._snapshot()
        self._edit(lambda here: here.remove(item))

    def clear(self):
        self._edit(lambda here: here.clear())

    def __eq__(self, other):
        if isinstance(other, ListView):
            other = other._snapshot()
        return self._snapshot() == other

    __hash__ = None

    def __repr__(self):
        return repr(self._snapshot())

    def copy(self):
        """The value as a plain list, detached from the object."""
        return self._snapshot()

    def __copy__(self):
        return self._snapshot()

    def __deepcopy__(self, memo):
        return self._snapshot()

    def __reduce__(self):
        return (list, (self._snapshot(),))
