#pragma once
// A spring, a dashpot or both: the abstract root of the spring family, with the members every kind
// shares. Each kind lists them first in its field table.
#include <cstdint>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_String.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kefC_Spring : public mem_Allocated {
 public:
  using RootClass = kefC_Spring;
  static constexpr const char* kClassName = "kefC_Spring";
  static constexpr const char* kScriptName = "SpringDashpot";
  static constexpr int kVersion = 844;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 19); }

  virtual ~kefC_Spring() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kefC_Spring* Copy() const { return DoCopy(); }
  virtual kefC_Spring* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kefC_Spring& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kefC_Spring& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  // The kind's display label ("Point mass/inertia"); empty for kinds that have none.
  const char* DisplayLabel() const;
  double GetSpringStiffness() const { return springStiffness; }
  void SetSpringStiffness(double v) { AssertEditable(); springStiffness = v; }
  bool GetApplySpring() const { return applySpring; }
  void SetApplySpring(bool v) { AssertEditable(); applySpring = v; }
  double GetDashpotCoeff() const { return dashpotCoeff; }
  void SetDashpotCoeff(double v) { AssertEditable(); dashpotCoeff = v; }
  bool GetApplyDashpot() const { return applyDashpot; }
  void SetApplyDashpot(bool v) { AssertEditable(); applyDashpot = v; }
  std::int32_t GetDof1() const { return dof1; }
  void SetDof1(std::int32_t v) { AssertEditable(); dof1 = v; }
  std::int32_t GetDof2() const { return dof2; }
  void SetDof2(std::int32_t v) { AssertEditable(); dof2 = v; }
  const cow_String& GetCsys() const { return csys; }
  void SetCsys(const cow_String& v) { AssertEditable(); csys = v; }
  bool GetSuppress() const { return suppress; }
  void SetSuppress(bool v) { suppress = v; }
  // While suppressed, every member but the suppress flag itself is closed to edits: the setters
  // and scripts refuse them with the family's code, leaving the feature as it was.
  void AssertEditable(const char* field = "") const;

 protected:
  kefC_Spring() = default;
  kefC_Spring(const kefC_Spring&) = default;
  kefC_Spring& operator=(const kefC_Spring&) = default;
  explicit kefC_Spring(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kefC_Spring& o) const = 0;
  // The rules every kind checks first: something applied, then its value.
  void AssertSpringValid() const;

  // Members of every kind of the family; each kind lists them in its field table.
  double springStiffness = 0.0;
  bool applySpring = false;
  double dashpotCoeff = 0.0;
  bool applyDashpot = false;
  std::int32_t dof1 = 0;  // 0: unspecified
  std::int32_t dof2 = 0;  // 0: unspecified
  cow_String csys;  // the name of a local coordinate system; empty for the global one
  bool suppress = false;

 private:
  cls_Uid uid;
};
