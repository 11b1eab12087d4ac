#pragma once
// Shared parts of the Python module: conversions between Python values and the command layer's
// JSON, and the module's exceptions. Only the module's own sources include this header, so that
// pybind11 stays out of every library header.
#include <string>

#include <nlohmann/json.hpp>
#include <pybind11/pybind11.h>

#include "command/cmd_Json.h"
#include "command/cmd_Path.h"
#include "platform/base/QMXBasException.h"

namespace qmxpy {

namespace py = pybind11;

// Python values to JSON: None, bool, int, float, str, sequences, mappings, and objects of the
// module (as their JSON form with their constructor name).
cmd_Json ToJson(py::handle value);
py::object FromJson(const cmd_Json& value);
// A Python str as UTF-8; a lone surrogate raises the module's CommandError.
std::string TextOf(py::handle text);

// The JSON form of an object of the module (bound or detached); null when `value` is none.
bool IsObject(py::handle value);
cmd_Json ObjectJson(py::handle value);

// The module's exceptions, created at import.
void CreateErrors(py::module_& m);
// Raises the Python exception for an error of the command layer: a validation error for a
// "PrimException", a command error for a "CmdException"; `flavour` picks a subclass that also is
// an AttributeError ("member") or a KeyError ("key").
[[noreturn]] void Raise(const std::string& kind, const std::string& message, const std::string& file, int line,
                        const cmd_Json& path = nullptr, const char* flavour = nullptr, const cmd_Json& member = nullptr,
                        const cmd_Json& candidates = nullptr);
[[noreturn]] void RaiseError(const cmd_Json& error, const char* flavour = nullptr);

// Runs fn, turning the library's exceptions into the module's.
template <class F>
auto Guarded(F&& fn, const char* flavour = nullptr) -> decltype(fn()) {
  try {
    return fn();
  } catch (const cmd_StepError& e) {
    // A step that named nothing: where the path stopped, the step, and what was valid there.
    cmd_Json at = cmd_Json::array();
    for (const auto& s : e.At()) at.push_back(s.str());
    Raise(e.Kind(), e.Message(), e.File(), e.Line(), at, flavour, e.Step(), cmd_Json(e.Candidates()));
  } catch (const QMXBasException& e) {
    Raise(e.Kind(), e.Message(), e.File(), e.Line(), nullptr, flavour);
  } catch (const cmd_MemberError& e) {
    // A member given to a constructor or an assignment failed: its path is the members leading to it.
    Raise(e.kind, e.message, e.file, e.line, cmd_Json(e.members), flavour,
          e.members.empty() ? cmd_Json() : cmd_Json(e.members.back()),
          e.candidates.empty() ? cmd_Json() : cmd_Json(e.candidates));
  }
}

}  // namespace qmxpy
