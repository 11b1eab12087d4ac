#pragma once
// The definitions of fw_PersistentClass's members. Include it only from a class's own .cpp, which
// ends with `template class fw_PersistentClass<Class, Base>;`.
#include "framework/fw_FieldTable.h"
#include "framework/fw_PersistentClass.h"
#include "platform/base/bas_Alloc.h"

template <class C, class Base>
C* fw_PersistentClass<C, Base>::Copy() const {
  return static_cast<C*>(DoCopy());
}

template <class C, class Base>
typename fw_PersistentClass<C, Base>::FamilyRoot* fw_PersistentClass<C, Base>::DoCopy() const {
  return mem_New<C>(Self());
}

template <class C, class Base>
void fw_PersistentClass<C, Base>::DBWrite(const cls_WriteVisitor& w) const {
  fw_WriteFields(Self(), w);
}

template <class C, class Base>
void fw_PersistentClass<C, Base>::InitializeMetadata(cls_ClassRegistrar& registrar) {
  fw_InitializeMetadata<C>(registrar);
}

template <class C, class Base>
void fw_PersistentClass<C, Base>::CowDtor(void* p) {
  fw_CowDtor<C>(p);
}

template <class C, class Base>
bool fw_PersistentClass<C, Base>::SameAs(const FamilyRoot& o) const {
  return Equal(Self(), static_cast<const C&>(o));
}

template <class C, class Base>
bool fw_PersistentClass<C, Base>::Equal(const C& a, const C& b) {
  return fw_EqualFields(a, b);
}
