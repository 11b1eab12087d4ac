#pragma once
// The mechanical members of a persistent class, written once: a class derives from
// fw_PersistentClass<Class, Base> (Base is the family's root or parent, or mem_Allocated for a
// class of its own) and keeps only its knowledge. The members are declared here and defined in
// fw_PersistentClassImpl.h, which only the class's own .cpp includes and instantiates
// explicitly; its header says `extern template` so no other file instantiates them.
#include "platform/persist/cls_RootOf.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

template <class C, class Base>
class fw_PersistentClass : public Base {
 public:
  // The family's root (the class itself for a class of its own): what the virtual copy and the
  // family's comparison speak of.
  using FamilyRoot = cls_Root<Base>;

  using Base::Base;

  // A copy of the most derived object. A covariant override cannot name C while C is still
  // being defined, so the typed copy hides the family's and dispatches through DoCopy.
  C* Copy() const;
  FamilyRoot* DoCopy() const;
  // Starts the record and writes the field table.
  void DBWrite(const cls_WriteVisitor& w) const;
  // Registers the class metadata built from the field table.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Equal uids and equal fields.
  friend bool operator==(const C& a, const C& b) { return fw_PersistentClass::Equal(a, b); }
  friend bool operator!=(const C& a, const C& b) { return !fw_PersistentClass::Equal(a, b); }

 protected:
  // The family's comparison, called only with an object of the same class.
  bool SameAs(const FamilyRoot& o) const;

 private:
  static bool Equal(const C& a, const C& b);
  const C& Self() const { return static_cast<const C&>(*this); }
};
