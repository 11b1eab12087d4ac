#pragma once
// Progressive activation of the elements of "elset": whether activated elements take part in the
// deformation, how the free surface is tracked, and the activation records.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "ktb/ktbC_ActivateElem.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_ElemProgressiveActivation : public fw_PersistentClass<ktbC_ElemProgressiveActivation, mem_Allocated> {
 public:
  // How the free surface of the active elements is tracked: from the exposed element facets
  // (FACET), or not at all (NONE).
  enum class freeSurfaceEnum : std::int32_t { FACET = 0, NONE = 1 };
  static constexpr omu_EnumLiteral kFreeSurfaceLiterals[] = {{"FACET", 0}, {"NONE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(freeSurfaceEnum) { return kFreeSurfaceLiterals; }
  static constexpr const char* kClassName = "ktbC_ElemProgressiveActivation";
  static constexpr const char* kScriptName = "ElementProgressiveActivation";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 10); }
  using freeSurfaceEnum = freeSurfaceEnum;
  using ActivationHandle = cow_COW<ktbC_ActivateElem, cow_Virtual<ktbC_ActivateElem>>;

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_ElemProgressiveActivation;
    return std::tuple{
        fw_Field{"elset", 0, "elset", &C::elset},
        fw_Field{"deformation", 1, "deformation", &C::deformation},
        fw_Field{"freeSurfaceType", 2, "freeSurfaceType", &C::freeSurfaceType},
        fw_Field{"activations", 3, "activations", &C::activations},
    };
  }

  ktbC_ElemProgressiveActivation() = default;
  explicit ktbC_ElemProgressiveActivation(const cls_ReadVisitor& reader);
  virtual ~ktbC_ElemProgressiveActivation() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const rgnC_Region& GetElset() const { return elset; }
  void SetElset(const rgnC_Region& v) { elset = v; }
  bool GetDeformation() const { return deformation; }
  void SetDeformation(bool v) { deformation = v; }
  freeSurfaceEnum GetFreeSurfaceType() const { return freeSurfaceType; }
  void SetFreeSurfaceType(freeSurfaceEnum v) { freeSurfaceType = v; }
  const cow_List<ActivationHandle>& GetActivations() const { return activations; }
  void SetActivations(const cow_List<ActivationHandle>& v) { activations = v; }

 private:
  rgnC_Region elset;
  bool deformation = false;
  freeSurfaceEnum freeSurfaceType = freeSurfaceEnum::FACET;
  cow_List<ActivationHandle> activations;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_ElemProgressiveActivation, mem_Allocated>;
