#pragma once
// A fastener: the abstract root of the fastener family, with the members every kind shares. Each
// kind lists them first in its field table.
#include <cstdint>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "framework/fw_OrLiteral.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kefC_Fastener : public mem_Allocated {
 public:
  using RootClass = kefC_Fastener;
  static constexpr const char* kClassName = "kefC_Fastener";
  static constexpr const char* kScriptName = "Fastener";
  static constexpr int kVersion = 844;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 7); }

  virtual ~kefC_Fastener() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kefC_Fastener* Copy() const { return DoCopy(); }
  virtual kefC_Fastener* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kefC_Fastener& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kefC_Fastener& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  // The kind's display label ("Point mass/inertia"); empty for kinds that have none.
  const char* DisplayLabel() const;
  bool IsWholeSurface() const { return influenceRadius.IsLiteral(); }
  void SetInfluenceRadius(kefC_WholeSurfaceEnum v) { AssertEditable(); influenceRadius = v; }
  bool GetSuppress() const { return suppress; }
  void SetSuppress(bool v) { suppress = v; }
  // While suppressed, every member but the suppress flag itself is closed to edits: the setters
  // and scripts refuse them with the family's code, leaving the feature as it was.
  void AssertEditable(const char* field = "") const;
  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { AssertEditable(); region = v; }
  const cow_String& GetCsys() const { return csys; }
  void SetCsys(const cow_String& v) { AssertEditable(); csys = v; }
  bool GetUr1() const { return ur1; }
  void SetUr1(bool v) { AssertEditable(); ur1 = v; }
  bool GetUr2() const { return ur2; }
  void SetUr2(bool v) { AssertEditable(); ur2 = v; }
  bool GetUr3() const { return ur3; }
  void SetUr3(bool v) { AssertEditable(); ur3 = v; }
  double GetInfluenceRadius() const { return influenceRadius.value; }
  void SetInfluenceRadius(double v) { AssertEditable(); influenceRadius = v; }
  kefC_WeightingMethodEnum GetWeightingMethod() const { return weightingMethod; }
  void SetWeightingMethod(kefC_WeightingMethodEnum v) { AssertEditable(); weightingMethod = v; }
  kefC_CouplingEnum GetCoupling() const { return coupling; }
  void SetCoupling(kefC_CouplingEnum v) { AssertEditable(); coupling = v; }
  kefC_RotationalCouplingEnum GetRotCoupling() const { return rotCoupling; }
  void SetRotCoupling(kefC_RotationalCouplingEnum v) { AssertEditable(); rotCoupling = v; }

 protected:
  kefC_Fastener() = default;
  kefC_Fastener(const kefC_Fastener&) = default;
  kefC_Fastener& operator=(const kefC_Fastener&) = default;
  explicit kefC_Fastener(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kefC_Fastener& o) const = 0;
  // The rules every kind checks first.
  void AssertFastenerValid() const;

  // Members of every kind of the family; each kind lists them in its field table.
  bool suppress = false;
  rgnC_Region region;
  cow_String csys;  // the name of a local coordinate system; empty for the global one
  bool ur1 = true;
  bool ur2 = true;
  bool ur3 = true;
  fw_OrLiteral<double, kefC_WholeSurfaceEnum> influenceRadius;  // "WHOLE_SURFACE" (the default) or a distance
  kefC_WeightingMethodEnum weightingMethod = kefC_WeightingMethodEnum::UNIFORM;
  kefC_CouplingEnum coupling = kefC_CouplingEnum::CONTINUUM;
  kefC_RotationalCouplingEnum rotCoupling = kefC_RotationalCouplingEnum::ROTATIONAL_CONTINUUM;

 private:
  cls_Uid uid;
};
