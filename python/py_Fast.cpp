// The hottest operations of scripts, reading and setting one member, as plain CPython functions:
// pybind11's call machinery (argument loaders, overload dispatch) costs several times the work
// itself. Each takes the typed path for a detached object and hands everything else, errors
// included, to the same code as every other access.
#include <exception>
#include <string>
#include <string_view>
#include <unordered_map>

#include "python/py_Types.h"

namespace qmxpy {

namespace {

PyTypeObject* gFastObjectType = nullptr;  // the Python class Object, set at import

// The Object behind a Python object of the module, or null when it is none (or has no value yet).
Object* FastObjectOf(PyObject* self) {
  if (!gFastObjectType || !PyObject_TypeCheck(self, gFastObjectType)) return nullptr;
  auto* inst = reinterpret_cast<py::detail::instance*>(self);
  if (!inst->simple_layout) return nullptr;
  return static_cast<Object*>(inst->simple_value_holder[0]);
}

// Runs fn, turning what it throws into the pending Python exception; null then.
template <class F>
PyObject* FastCall(F&& fn) {
  try {
    return fn();
  } catch (py::error_already_set& e) {
    e.restore();
  } catch (const py::builtin_exception& e) {
    e.set_error();
  } catch (const std::exception& e) {
    PyErr_SetString(PyExc_RuntimeError, e.what());
  }
  return nullptr;
}

struct FastMember {
  const cls_ClassMetadata* md;
  const cls_ScriptField* field;
};

PyObject* FastGet(PyObject* capsule, PyObject* self) {
  const auto* m = static_cast<const FastMember*>(PyCapsule_GetPointer(capsule, nullptr));
  if (!m) return nullptr;
  Object* o = FastObjectOf(self);
  return FastCall([&]() -> PyObject* {
    if (o && Single(m->field->type))
      if (void* obj = OwnRoot(*o, m->md)) return Scalar(m->field->get(obj)).release().ptr();
    const Object& live = o ? *o : py::handle(self).cast<const Object&>();
    if (!live.root && !live.session) Raise("CmdException", kNoConstructor, "py_Fast.cpp", __LINE__, nullptr, "MemberError");
    return GetMember(self, live, m->field->scriptName).release().ptr();
  });
}

PyMethodDef gFastGetDef = {"fget", reinterpret_cast<PyCFunction>(FastGet), METH_O, "Reads the member."};

PyObject* FastSetAttr(PyObject* self, PyObject* const* args, Py_ssize_t nargs) {
  if (nargs != 2) {
    PyErr_SetString(PyExc_TypeError, "__setattr__ takes a name and a value");
    return nullptr;
  }
  PyObject* name = args[0];
  PyObject* value = args[1];
  if (!PyUnicode_Check(name)) {
    PyErr_SetString(PyExc_TypeError, "attribute name must be a string");
    return nullptr;
  }
  Object* o = FastObjectOf(self);
  return FastCall([&]() -> PyObject* {
    if (o && o->root && o->path.empty() && !o->frozen) {
      Py_ssize_t size = 0;
      const char* text = PyUnicode_AsUTF8AndSize(name, &size);
      if (!text) throw py::error_already_set();
      void* obj = o->root->obj;
      const cls_ScriptField* f = o->root->md->ClassOf(obj).FindScriptField(std::string_view(text, size));
      cls_Value direct;
      if (f && !f->readOnly && Direct(*f, value, direct)) {
        try {
          f->set(obj, direct);
          Py_RETURN_NONE;
        } catch (...) {
          // A refused value changed nothing; the checked way below reports it with its member.
        }
      }
    }
    SetAttr(o ? *o : py::handle(self).cast<const Object&>(), TextOf(name), value);
    Py_RETURN_NONE;
  });
}

PyMethodDef gFastSetAttrDef = {"__setattr__", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(FastSetAttr)),
                               METH_FASTCALL, "Sets a member by scripting name."};

// The classes of the constructors and the class each makes, for __init__ to find its class by the
// type of what it initializes (or of its nearest base among them, for a script's own subclass).
std::unordered_map<PyTypeObject*, const cls_ClassMetadata*>& FastInitClasses() {
  static auto* classes = new std::unordered_map<PyTypeObject*, const cls_ClassMetadata*>();
  return *classes;
}

PyObject* FastInit(PyObject* self, PyObject* args, PyObject* kwargs) {
  Object* o = FastObjectOf(self);
  return FastCall([&]() -> PyObject* {
    const cls_ClassMetadata* md = nullptr;
    for (PyTypeObject* t = Py_TYPE(self); t && !md; t = t->tp_base) {
      auto it = FastInitClasses().find(t);
      if (it != FastInitClasses().end()) md = it->second;
    }
    if (!md || !o) throw py::type_error("__init__ of a constructor's class needs an object of that class");
    if (PyTuple_GET_SIZE(args) != 0)
      throw py::type_error(std::string(md->ScriptName()) + "() takes its members by keyword only");
    InitNew(*o, *md, kwargs ? py::reinterpret_borrow<py::dict>(kwargs) : py::dict());
    Py_RETURN_NONE;
  });
}

PyMethodDef gFastInitDef = {"__init__", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(FastInit)),
                            METH_VARARGS | METH_KEYWORDS, "Makes a detached object with the given members."};

}  // namespace

py::object FastInitFor(py::handle cls, const cls_ClassMetadata& md) {
  FastInitClasses()[reinterpret_cast<PyTypeObject*>(cls.ptr())] = &md;
  PyObject* descr = PyDescr_NewMethod(gFastObjectType, &gFastInitDef);
  if (!descr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(descr);
}

py::object MemberProperty(const cls_ClassMetadata& md, const cls_ScriptField& f) {
  // The member stays described for as long as the class lives: the capsule owns it.
  py::capsule member(new FastMember{&md, &f}, [](void* p) { delete static_cast<FastMember*>(p); });
  PyObject* fget = PyCFunction_New(&gFastGetDef, member.ptr());
  if (!fget) throw py::error_already_set();
  return py::module_::import("builtins").attr("property")(py::reinterpret_steal<py::object>(fget));
}

void InstallFastSetAttr(py::handle objectType) {
  gFastObjectType = reinterpret_cast<PyTypeObject*>(objectType.ptr());
  PyObject* descr = PyDescr_NewMethod(gFastObjectType, &gFastSetAttrDef);
  if (!descr) throw py::error_already_set();
  py::setattr(objectType, "__setattr__", py::reinterpret_steal<py::object>(descr));
}

}  // namespace qmxpy
