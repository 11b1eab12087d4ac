#pragma once
// A material behavior ("option"): the abstract root of every option and sub-option class. Slots of
// a material and of an option hold options through this class; each kind writes, copies,
// validates and compares itself.
#include <cstdint>
#include <string_view>

#include "framework/fw_Field.h"
#include "kma/kmaC_OptionClass.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_String.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;
class kmaC_MaterialOptionList;

class kmaC_MaterialOption : public mem_Allocated {
 public:
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_MaterialOption";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 2); }

  virtual ~kmaC_MaterialOption() = default;
  // A copy of the most derived object; each class's DoCopy makes it.
  kmaC_MaterialOption* Copy() const { return DoCopy(); }
  virtual kmaC_MaterialOption* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  virtual unsigned DynTypeId() const { return TypeId(); }
  // Opens the record; a subclass writes its own fields after this.
  virtual void DBWrite(const cls_WriteVisitor& w) const;
  // The refusal of a sub-option name the option does not have.
  virtual const char* UnknownSubOptionMessage() const { return "Material option has no suboptions"; }
  // The list member of that scripting name ("uniaxialTests"), or null for an option without it.
  virtual const kmaC_MaterialOptionList* OptionList(std::string_view) const { return nullptr; }
  virtual kmaC_MaterialOptionList* ModifyOptionList(std::string_view) { return nullptr; }
  // The option shortcuts' refusal of a step that names nothing of the option: a list member of
  // another kind of option with that list's message, any other name with the option's own.
  [[noreturn]] static void RefuseUnknownStep(const kmaC_MaterialOption& option, std::string_view step);

  // True when the object's class is the given one or derives from it.
  bool IsA(unsigned typeId) const;
  unsigned ClassTypeId() const { return DynTypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kmaC_MaterialOption& o) const { return DynTypeId() == o.DynTypeId() && SameAs(o); }
  bool operator!=(const kmaC_MaterialOption& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }

 protected:
  kmaC_MaterialOption() = default;
  kmaC_MaterialOption(const kmaC_MaterialOption&) = default;
  kmaC_MaterialOption& operator=(const kmaC_MaterialOption&) = default;
  explicit kmaC_MaterialOption(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kmaC_MaterialOption& o) const = 0;

 private:
  cls_Uid uid;
};

// A copy-on-write handle to an option of any kind; copies share the option until one side changes.
using kmaC_OptionHandle = cow_COW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>>;
