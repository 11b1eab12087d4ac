// The Python class Object: the base of every constructor's class.
#include <memory>
#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_Check.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "python/py_Text.h"
#include "python/py_Types.h"

namespace qmxpy {

void BindObject(py::module_& m) {
  py::class_<Object> object(m, "Object",
                            "An object of the attribute library: a detached value made by its constructor, or a "
                            "view of an object inside a model. Members are read and set by scripting name.");
  ObjectBase() = object;
  object.def(py::init<>())
      .def("__getattr__",
           [](py::handle handle, Utf8 name) -> py::object {
             if (name.text.starts_with("__")) throw py::attribute_error(name.text);
             const Object& self = handle.cast<const Object&>();
             if (!self.root && !self.session) Raise("CmdException", kNoConstructor, "py_BindObject.cpp", __LINE__, nullptr, "MemberError");
             return GetMember(handle, self, name);
           })
      .def("__delattr__", [](const Object& self, Utf8 name) { SetMember(self, name, py::none()); })
      .def("__getitem__",
           [](py::handle handle, Utf8 name) { return GetMember(handle, handle.cast<const Object&>(), name); })
      .def("_value", [](const Object& self, Utf8 name) { return MemberValue(self, name); },
           "A member's value as plain data, as it is now.")
      .def("_element", [](const Object& self, Utf8 name, Py_ssize_t index) { return ListElement(self, name, index); },
           "An element of a list of objects, as it is now.")
      .def("__setitem__",
           [](const Object& self, Utf8 name, py::handle value) { SetMember(self, name, value); })
      .def("__dir__", [](py::handle self) { return Dir(self, Members(ClassOf(self.cast<const Object&>()))); })
      .def("__repr__", [](const Object& self) { return self.root || self.session ? Repr(self) : std::string("Object()"); })
      .def("__str__", [](const Object& self) { return self.root || self.session ? Str(self) : std::string("Object()"); })
      .def_property_readonly("detached", [](const Object& self) { return Live(self).root != nullptr; },
                             "True for an object that is not inside a database (made by a constructor or copied).")
      .def("__eq__",
           [](const Object& self, py::handle other) -> py::object {
             if (!IsObject(other)) return py::reinterpret_borrow<py::object>(Py_NotImplemented);
             const cls_ClassMetadata& a = ClassOf(self);
             const cls_ClassMetadata& b = ClassOf(other.cast<const Object&>());
             return py::bool_(&a == &b && ObjectToJson(self) == ObjectJson(other));
           })
      .def("advise", [](const Object& self) { return AdviseObject(self); },
           "The warnings of the advice on the object and what it holds: dicts of path, member, code and message.")
      .def("validate", [](const Object& self) { return Validate(self); },
           "Checks the object and everything it holds, as a validation in a model does; failures raise "
           "ValidationError carrying every failure (e.failures), first failure first, each with its path (from "
           "the object, when detached) and the member whose object raised it (None for a rule of the object's own).")
      .def("members", [](const Object& self) { return Members(ClassOf(self)); },
           "The scripting names of the members, in their order.")
      .def("to_dict", [](const Object& self) { return FromJson(ObjectToJson(self)); },
           "The object's value as plain Python data keyed by scripting names, with its constructor under "
           "\"type\".")
      .def("copy",
           [](const Object& self) {
             const cmd_Json j = ObjectToJson(self);
             const cls_ClassMetadata& md = ClassOf(self);
             cmd_OwnedObject obj = Guarded([&] { return cmd_NewObject(md, &j); });
             return Detached(md, obj.release());
           },
           "A detached copy of the object.")
      .def_property_readonly("type_name", [](const Object& self) { return cmd_ClassLabel(ClassOf(self)); },
                             "The scripting constructor name of the object's class.")
      .def_property_readonly("class_name", [](const Object& self) { return ClassOf(self).Name().str(); },
                             "The registered class name.")
      .def_property_readonly("path",
                             [](const Object& self) -> py::object {
                               if (self.root) return py::none();
                               return FromJson(PathJson(self.path));
                             },
                             "The path of scripting names of an object inside a database; None when detached.");
  object.attr("__hash__") = py::none();
  InstallFastSetAttr(object);
  // Members are reached by name; without this, __getitem__ would make objects iterable by position.
  object.attr("__iter__") = py::none();
  ConstructOnNew(object);
}

}  // namespace qmxpy
