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


class ObjectListView(ListView):
    """A list of objects member, seen in place. Its elements are the objects themselves: in a
    model, views whose changes reach the model; in a detached object, copies that refuse changes
    (the list holds values, so a change to one could not reach it) - replace the element instead
    (`lst[0] = changed`). Every change to the list (items, append, insert, del, slices, sort) is
    written back as the whole member, checked as any assignment is, so it takes effect or raises."""

    __slots__ = ()

    def _element(self, index):
        return self._owner._element(self._member, index)

    def __getitem__(self, index):
        if isinstance(index, slice):
            # A slice is a copy, as a list's is: detached copies of the elements.
            return [self._element(i).copy() for i in range(len(self))[index]]
        return self._element(index)

    def __iter__(self):
        for i in range(len(self)):
            yield self._element(i)

    def __contains__(self, item):
        return any(e == item for e in self)

    def pop(self, index=-1):
        item = self[index]
        popped = item.copy() if item is not None else None
        del self[index]
        return popped

    def remove(self, item):
        for i, e in enumerate(self):
            if e == item:
                del self[i]
                return
        raise ValueError("The list holds no object equal to the one given")

    def sort(self, *, key=None, reverse=False):
        items = [e.copy() for e in self]
        items.sort(key=key, reverse=reverse)
        self._owner[self._member] = items

    def __eq__(self, other):
        if isinstance(other, ListView):
            other = list(other)
        if not isinstance(other, list):
            return False
        mine = list(self)
        return len(mine) == len(other) and all(a == b for a, b in zip(mine, other))

    __hash__ = None

    def __repr__(self):
        return repr(list(self))

    def copy(self):
        """The elements as a plain list of detached copies."""
        return [e.copy() if e is not None else None for e in self]

    def __copy__(self):
        return self.copy()

    def __deepcopy__(self, memo):
        return self.copy()

    def __reduce__(self):
        return (list, (self.copy(),))


class TableView(ListView):
    """A table held by an object of its own (the data table of a material option): its rows as a
    list view, and the table object's other members as attributes of the view
    (`elastic.table.allowEmptyFirstRow = True`), set through the same checks as any member."""

    __slots__ = ()

    def _flag(self, name):
        table = object.__getattribute__(self, "_owner")
        return name != object.__getattribute__(self, "_member") and name in table.members()

    def __getattr__(self, name):
        if not name.startswith("_") and self._flag(name):
            return getattr(self._owner, name)
        raise AttributeError(f"'{type(self).__name__}' object has no attribute '{name}'")

    def __setattr__(self, name, value):
        if name in ListView.__slots__:
            object.__setattr__(self, name, value)
        elif self._flag(name):
            setattr(self._owner, name, value)
        else:
            raise AttributeError(f"A table has no member \"{name}\"; its members are: "
                                 + ", ".join(self.members()))

    def members(self):
        """The members of the table beside its rows (such as allowEmptyFirstRow)."""
        return [m for m in self._owner.members() if m != self._member]

    def __dir__(self):
        return sorted(set(object.__dir__(self)) | set(self.members()))
