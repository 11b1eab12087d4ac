#pragma once
// Polymorphic families: a class that declares RootClass belongs to that root's family, and
// untyped object pointers of the framework always point at the root subobject.
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_RootOf.h"
#include "platform/persist/cls_Visitor.h"
#include "platform/base/nex_Exception.h"


const cls_ClassMetadata& cls_MetadataOf(const char* className);
const cls_ClassMetadata& cls_MetadataOf(unsigned typeId);

// The metadata of class T, looked up by name once: the registrar keeps every metadata it was
// given for the life of the process, so walks over many objects need not search it again.
template <class T>
const cls_ClassMetadata& cls_MetadataOfClass() {
  static const cls_ClassMetadata& md = cls_MetadataOf(T::kClassName);
  return md;
}

// Builds an object of class T from a reader (for a family, of the class the record names, which
// must be T or derive from it); the object comes from the framework allocator.
template <class T>
T* cls_NewFromReader(const cls_ReadVisitor& r) {
  if constexpr (requires { typename T::RootClass; }) {
    const cls_ClassMetadata& md = cls_MetadataOf(r.GetTypeId());
    bool fits = std::string_view(md.RootName()) == cls_Root<T>::kClassName;
    if constexpr (!std::is_same_v<T, cls_Root<T>>) fits = fits && md.IsA(cls_MetadataOfClass<T>());
    if (!fits) nex_ThrowCmd("A " + md.Name().str() + " cannot stand where a " + T::kClassName + " is expected");
    return static_cast<T*>(static_cast<cls_Root<T>*>(md.NewFromRecord(r)));
  } else {
    if (r.GetTypeId() != T::TypeId())
      nex_ThrowCmd("A record of type id " + std::to_string(r.GetTypeId()) + " cannot be read as " + T::kClassName);
    return mem_New<T>(r);
  }
}

// The metadata of an object's own class (its most derived one).
template <class T>
const cls_ClassMetadata& cls_ClassOf(const T& obj) {
  if constexpr (requires { obj.ClassTypeId(); }) return cls_MetadataOf(obj.ClassTypeId());
  else return cls_MetadataOfClass<T>();
}
