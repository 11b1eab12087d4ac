#pragma once
// Text arguments of the bindings (keys, model names, member names, file names): a str taken as
// UTF-8, where a lone surrogate, which has no UTF-8 form, is refused with the module's error
// instead of the binding library's own. Only the module's sources include this header.
#include <string>

#include "python/py_Core.h"

namespace qmxpy {

struct Utf8 {
  std::string text;
  operator const std::string&() const noexcept { return text; }  // NOLINT: a str argument is text
};

}  // namespace qmxpy

namespace pybind11::detail {

template <>
struct type_caster<qmxpy::Utf8> {
  PYBIND11_TYPE_CASTER(qmxpy::Utf8, const_name("str"));
  // Anything but a str is not this argument (the call then fails as one of the wrong type).
  bool load(handle src, bool) {
    if (!src || !PyUnicode_Check(src.ptr())) return false;
    value.text = qmxpy::TextOf(src);
    return true;
  }
  static handle cast(const qmxpy::Utf8& v, return_value_policy, handle) {
    return PyUnicode_FromStringAndSize(v.text.data(), static_cast<Py_ssize_t>(v.text.size()));
  }
};

}  // namespace pybind11::detail
