#pragma once
// One term of an equation: a coefficient times a degree of freedom of the nodes of a set, in a
// coordinate system.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_String.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kcoC_EquationTerm : public fw_PersistentClass<kcoC_EquationTerm, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kcoC_EquationTerm";
  static constexpr const char* kScriptName = "EquationTerm";
  static constexpr int kVersion = 840;
  static constexpr unsigned TypeId() { return fw_TypeId(720, 7); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_EquationTerm;
    return std::tuple{
        fw_Field{"coefficient", 0, "coefficient", &C::coefficient},
        fw_Field{"setName", 1, "setName", &C::setName},
        fw_Field{"dof", 2, "dof", &C::dof},
        fw_Field{"coordSysId", 3, "coordSysId", &C::coordSysId},
    };
  }

  kcoC_EquationTerm() = default;
  kcoC_EquationTerm(double coefficient_, const cow_String& setName_, std::int32_t dof_, std::int32_t coordSysId_ = 0)
      : coefficient(coefficient_), setName(setName_), dof(dof_), coordSysId(coordSysId_) {}
  explicit kcoC_EquationTerm(const cls_ReadVisitor& r);
  virtual ~kcoC_EquationTerm() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  double GetCoefficient() const { return coefficient; }
  void SetCoefficient(double v) { coefficient = v; }
  const cow_String& GetSetName() const { return setName; }
  void SetSetName(const cow_String& v) { setName = v; }
  std::int32_t GetDof() const { return dof; }
  void SetDof(std::int32_t v) { dof = v; }
  std::int32_t GetCoordSysId() const { return coordSysId; }
  void SetCoordSysId(std::int32_t v) { coordSysId = v; }

 private:
  double coefficient = 1.0;
  cow_String setName;
  std::int32_t dof = 1;
  std::int32_t coordSysId = 0;  // 0: the global system
  cls_Uid uid;
};

extern template class fw_PersistentClass<kcoC_EquationTerm, mem_Allocated>;
