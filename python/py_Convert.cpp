// Python values and the command layer's JSON, and the module's exceptions.
#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>
#include <pybind11/eval.h>

#include "command/cmd_Line.h"
#include "python/py_Types.h"

namespace qmxpy {

namespace {

// The exception classes by name.
py::dict& Errors() {
  static py::dict* classes = new py::dict();  // never destroyed: outlives the interpreter's teardown
  return *classes;
}

}  // namespace

void CreateErrors(py::module_& m) {
  // Plain Python classes: the message is str(e), the system's kind, file, line and path are
  // attributes. The lookup errors also derive from AttributeError and KeyError so that getattr()
  // with a default, hasattr() and Mapping.get() behave as Python code expects.
  py::dict scope;
  scope["__builtins__"] = py::module_::import("builtins");
  scope["__name__"] = m.attr("__name__");
  py::exec(R"(
class Error(Exception):
    """An error of the attribute library: the system's exact message, its kind ("PrimException",
    "CmdException", ...), the source file and line that reported it, and the member it concerns
    where there is one. A failed validation of an object, repository, model or database carries
    the path of the first failing object and under `failures` every failure, first failure first,
    each a dict of path, member (the member whose object raised the failure; None for a rule of
    the object's own), message, kind, file and line. For a path or member that named nothing: the
    path that resolved, the member (or key) that did not and the candidates, the names that
    would have been valid there."""
    def __init__(self, message, kind="", file="", line=0, path=None, member=None, candidates=None,
                 failures=None):
        super().__init__(message)
        self.message = message
        self.kind = kind
        self.file = file
        self.line = line
        self.path = path
        self.member = member
        self.candidates = candidates
        self.failures = failures
    def __str__(self):
        return self.message

class ValidationError(Error):
    """A rule of an object's validation failed (the module's fixed message)."""

class CommandError(Error):
    """The command layer or an enumeration refused a request; nothing was changed."""

class MemberError(CommandError, AttributeError):
    """An object has no member of that scripting name."""

class NotFoundError(CommandError, KeyError):
    """A repository or database holds nothing under that key."""

class KeywordError(MemberError, TypeError):
    """A constructor was given a keyword that names none of its members."""
)", scope);
  for (const char* name : {"Error", "ValidationError", "CommandError", "MemberError", "NotFoundError", "KeywordError"}) {
    scope[name].attr("__module__") = m.attr("__name__");
    m.attr(name) = scope[name];
    Errors()[name] = scope[name];
  }
}

void Raise(const std::string& kind, const std::string& message, const std::string& file, int line,
           const cmd_Json& path, const char* flavour, const cmd_Json& member, const cmd_Json& candidates) {
  const char* name = kind == "PrimException" ? "ValidationError" : kind == "CmdException" ? "CommandError" : "Error";
  if (flavour && kind == "CmdException") name = flavour;
  py::object cls = Errors()[name];
  py::object err = cls(message, kind, file, line, path.is_null() ? py::object(py::none()) : FromJson(path),
                       FromJson(member), candidates.is_null() ? py::object(py::none()) : FromJson(candidates));
  PyErr_SetObject(cls.ptr(), err.ptr());
  throw py::error_already_set();
}

void RaiseError(const cmd_Json& error, const char* flavour) {
  const cmd_Json path = error.contains("path") ? error["path"] : cmd_Json();
  try {
    Raise(error.value("kind", std::string()), error.value("message", std::string()), error.value("file", std::string()),
          error.value("line", 0), path, flavour, error.contains("member") ? error["member"] : cmd_Json(),
          error.contains("candidates") ? error["candidates"] : cmd_Json());
  } catch (py::error_already_set& e) {
    if (error.contains("failures")) {
      // Every failure of a validation, each with the same keys, a member only where one is named.
      py::list failures;
      for (const auto& f : error["failures"]) {
        py::dict one;
        one["path"] = FromJson(f.value("path", cmd_Json::array()));
        one["member"] = FromJson(f.contains("member") ? f["member"] : cmd_Json());
        one["message"] = f.value("message", std::string());
        one["kind"] = f.value("kind", std::string());
        one["file"] = f.value("file", std::string());
        one["line"] = f.value("line", 0);
        failures.append(std::move(one));
      }
      e.value().attr("failures") = failures;
    }
    throw;
  }
}

namespace {

// The containers being converted, outermost first: a value that holds itself is refused, and so
// is nesting deeper than a command line may nest, before the recursion could exhaust the stack.
struct ConvertStack {
  std::vector<PyObject*> open;
};

// A Python str as UTF-8; a lone surrogate has no UTF-8 form and is refused as bad input.
std::string Utf8Of(py::handle text) {
  Py_ssize_t size = 0;
  const char* p = PyUnicode_AsUTF8AndSize(text.ptr(), &size);
  if (!p) {
    PyErr_Clear();
    Raise("CmdException", "A text holds a lone surrogate, which has no UTF-8 form", "py_Convert.cpp", __LINE__);
  }
  return std::string(p, static_cast<std::size_t>(size));
}

cmd_Json Convert(py::handle value, ConvertStack& stack);

// Converts the items of a list or mapping one level further in.
template <class F>
cmd_Json Nested(py::handle value, ConvertStack& stack, F&& items) {
  for (PyObject* o : stack.open)
    if (o == value.ptr())
      Raise("CmdException", "A value of type " + py::str(py::type::of(value).attr("__name__")).cast<std::string>() +
            " contains itself", "py_Convert.cpp", __LINE__);
  if (stack.open.size() >= cmd_kMaxDepth)
    Raise("CmdException", "The value nests lists and mappings more than " + std::to_string(cmd_kMaxDepth) +
          " levels deep", "py_Convert.cpp", __LINE__);
  stack.open.push_back(value.ptr());
  cmd_Json out = items();
  stack.open.pop_back();
  return out;
}

cmd_Json Convert(py::handle value, ConvertStack& stack) {
  if (value.is_none()) return nullptr;
  if (py::isinstance<py::bool_>(value)) return value.cast<bool>();
  if (py::isinstance<py::int_>(value)) {
    try {
      return value.cast<std::int64_t>();
    } catch (const py::cast_error&) {
      throw py::value_error("The integer " + py::str(value).cast<std::string>() + " is too large");
    }
  }
  if (py::isinstance<py::float_>(value)) return value.cast<double>();
  if (py::isinstance<py::str>(value)) return Utf8Of(value);
  if (IsObject(value)) return ObjectJson(value);
  // A list view converts from its value read once, not element by element through the view.
  if (ListViewClass() && py::isinstance(value, ListViewClass())) return Convert(value.attr("_snapshot")(), stack);
  if (py::isinstance<py::dict>(value)) {
    return Nested(value, stack, [&] {
      cmd_Json out = cmd_Json::object();
      for (auto item : value.cast<py::dict>()) {
        if (!py::isinstance<py::str>(item.first)) throw py::type_error("The keys of a mapping of values are names");
        out[Utf8Of(item.first)] = Convert(item.second, stack);
      }
      return out;
    });
  }
  if (py::isinstance<py::sequence>(value) && !py::isinstance<py::bytes>(value)) {
    return Nested(value, stack, [&] {
      cmd_Json out = cmd_Json::array();
      for (auto item : value.cast<py::sequence>()) out.push_back(Convert(item, stack));
      return out;
    });
  }
  // Numbers of other kinds (numpy scalars, decimals) through their index or float form.
  if (py::hasattr(value, "__index__")) {
    PyObject* index = PyNumber_Index(value.ptr());
    if (!index) throw py::error_already_set();
    return Convert(py::reinterpret_steal<py::object>(index), stack);
  }
  if (py::hasattr(value, "__float__")) return py::float_(py::reinterpret_borrow<py::object>(value)).cast<double>();
  throw py::type_error("A value of type " + py::str(py::type::of(value).attr("__name__")).cast<std::string>() +
                       " cannot be given to the attribute library");
}

}  // namespace

std::string TextOf(py::handle text) { return Utf8Of(text); }

cmd_Json ToJson(py::handle value) {
  ConvertStack stack;
  return Convert(value, stack);
}

py::object FromJson(const cmd_Json& value) {
  switch (value.type()) {
    case cmd_Json::value_t::null: return py::none();
    case cmd_Json::value_t::boolean: return py::bool_(value.get<bool>());
    case cmd_Json::value_t::number_integer: return py::int_(value.get<std::int64_t>());
    case cmd_Json::value_t::number_unsigned: return py::int_(value.get<std::uint64_t>());
    case cmd_Json::value_t::number_float: return py::float_(value.get<double>());
    case cmd_Json::value_t::string: return py::str(value.get<std::string>());
    case cmd_Json::value_t::array: {
      py::list out;
      for (const auto& e : value) out.append(FromJson(e));
      return out;
    }
    case cmd_Json::value_t::object: {
      py::dict out;
      for (const auto& item : value.items()) out[py::str(item.key())] = FromJson(item.value());
      return out;
    }
    default: return py::none();
  }
}

}  // namespace qmxpy
