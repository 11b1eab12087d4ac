#pragma once
/// \file
/// Typed access to the elements of a repository whose elements are of several classes (profiles,
/// amplitudes, constraints, ...): the element as the class it is, checked against the class
/// registry instead of a cast.
#include <string>
#include <type_traits>

#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_Family.h"

namespace qmx {

/// The element under `key` as class T, or null when the repository has no such key or the element
/// is of another class: `qmx::Find<kbpC_CircularProfile>(qmx::Profiles(model), "Circle-1")`.
template <class T, class Repository>
const T* Find(const Repository& repository, const typename Repository::Key& key) {
  using Element = typename Repository::Element;
  static_assert(std::is_base_of_v<Element, T>, "T is not of the repository's element family");
  const Element* obj = repository.ConstGet(key);
  if (!obj || !cls_ClassOf(*obj).IsA(cls_MetadataOfClass<T>())) return nullptr;
  return static_cast<const T*>(obj);
}

/// The element under `key` as class T for modification (separated from every copy first).
/// Throws nex_CmdException when the key is missing (the repository's own message) or with
/// "The element KEY of REPOSITORY is a CLASS, not a T" when it is of another class; the
/// repository is left as it was either way.
template <class T, class Repository>
T& Modify(Repository& repository, const typename Repository::Key& key) {
  using Element = typename Repository::Element;
  static_assert(std::is_base_of_v<Element, T>, "T is not of the repository's element family");
  const Element* seen = repository.ConstGet(key);
  if (!seen) repository.Get(key);  // refuses the missing key with the repository's own message
  const cls_ClassMetadata& cls = cls_ClassOf(*seen);
  if (!cls.IsA(cls_MetadataOfClass<T>())) {
    std::string shown;
    if constexpr (std::is_integral_v<typename Repository::Key>) shown = std::to_string(key);
    else shown = "\"" + key.str() + "\"";
    nex_ThrowCmd("The element " + shown + " of " + Repository::Names::kRepositoryName + " is a " + cls.Name().str() +
                 ", not a " + T::kClassName);
  }
  return static_cast<T&>(repository.Get(key));
}

}  // namespace qmx
