// What `Cls.__new__(Cls)` makes without `__init__`: Objects and Databases come out constructed
// (an empty Object refuses every use with the module's error, an empty Database is usable);
// Models and Repositories are only reached through their database, so making one is refused.
// Without this the C++ value would stay unconstructed and its first use would read garbage.
#include <string>

#include "python/py_Types.h"

namespace qmxpy {

namespace {

py::object NewInstance(py::handle cls) {
  if (!PyType_Check(cls.ptr())) throw py::type_error("__new__ needs a class");
  PyObject* self = py::detail::pybind11_object_new(reinterpret_cast<PyTypeObject*>(cls.ptr()), nullptr, nullptr);
  if (!self) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(self);
}

}  // namespace

void ConstructOnNew(py::handle type) {
  py::object init = type.attr("__init__");  // the class's own constructor, taking no values
  py::cpp_function make([init](py::handle cls, py::args, py::kwargs) {
    py::object self = NewInstance(cls);
    init(self);  // a second __init__ (the one Python calls next) leaves the value alone
    return self;
  });
  // A staticmethod, as Python makes of a __new__ written in a class body.
  py::setattr(type, "__new__", py::staticmethod(make));
}

void RefuseNew(py::handle type, const std::string& how) {
  const std::string name = py::str(type.attr("__name__"));
  py::cpp_function refuse([name, how](py::handle, py::args, py::kwargs) -> py::object {
    Raise("CmdException", "A " + name + " is not made directly; it is reached " + how, "py_New.cpp", __LINE__);
  });
  py::setattr(type, "__new__", py::staticmethod(refuse));
}

}  // namespace qmxpy
