#pragma once
// A load case: a named combination, for one step, of loads and boundary conditions of the model,
// each with the factor it is scaled by.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "klc/klcC_LoadCaseTerm.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class klcC_LoadCase : public fw_PersistentClass<klcC_LoadCase, mem_Allocated> {
 public:
  using Term = cow_COW<klcC_LoadCaseTerm, cow_Direct<klcC_LoadCaseTerm>>;
  using Terms = cow_List<Term>;

  static constexpr const char* kClassName = "klcC_LoadCase";
  static constexpr const char* kScriptName = "LoadCase";
  static constexpr int kVersion = 732;
  static constexpr unsigned TypeId() { return fw_TypeId(732, 1); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = klcC_LoadCase;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"stepName", 1, "stepName", &C::stepName},
        fw_Field{"description", 2, "description", &C::description},
        fw_Field{"loads", 3, "loads", &C::loads},
        fw_Field{"boundaryConditions", 4, "boundaryConditions", &C::boundaryConditions},
    };
  }

  klcC_LoadCase() = default;
  explicit klcC_LoadCase(const cls_ReadVisitor& r);
  virtual ~klcC_LoadCase() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  bool GetSuppress() const { return suppress; }
  void SetSuppress(bool v) { suppress = v; }
  const cow_String& GetStepName() const { return stepName; }
  void SetStepName(const cow_String& v) { stepName = v; }
  const cow_String& GetDescription() const { return description; }
  void SetDescription(const cow_String& v) { description = v; }
  const Terms& GetLoads() const { return loads; }
  void SetLoads(const Terms& v) { loads = v; }
  const Terms& GetBoundaryConditions() const { return boundaryConditions; }
  void SetBoundaryConditions(const Terms& v) { boundaryConditions = v; }

 private:
  bool suppress = false;
  cow_String stepName;
  cow_String description;
  Terms loads;
  Terms boundaryConditions;
  cls_Uid uid;
};

extern template class fw_PersistentClass<klcC_LoadCase, mem_Allocated>;
