#pragma once
// An extended finite element crack in a domain, with its initial location and the per-element
// crack data.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_OrLiteral.h"
#include <cstdint>

#include "kef/kefC_Crack.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kefC_XFEMCrack : public fw_PersistentClass<kefC_XFEMCrack, kefC_Crack> {
 public:
  using BaseClass = kefC_Crack;
  using RootClass = kefC_Crack;
  static constexpr const char* kClassName = "kefC_XFEMCrack";
  static constexpr const char* kScriptName = "XFEMCrack";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 13); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_XFEMCrack;
    return std::tuple{
        fw_Field{"crackDomain", 1, "crackDomain", &C::crackDomain},
        fw_Field{"crackLocation", 2, "crackLocation", &C::crackLocation},
        fw_Field{"allowCrackGrowth", 3, "allowCrackGrowth", &C::allowCrackGrowth},
        fw_Field{"singularityCalcRadius", 4, "singularityCalcRadius", &C::singularityCalcRadius},
        fw_Field{"interactionProperty", 5, "interactionProperty", &C::interactionProperty},
        fw_Field{"elemId", 6, "elemId", &C::elemId},
        fw_Field{"nodeId", 7, "nodeId", &C::nodeId},
        fw_Field{"hasCrackFront", 8, "hasCrackFront", &C::hasCrackFront},
        fw_Field{"crackPlaneDist", 9, "crackPlaneDist", &C::crackPlaneDist},
        fw_Field{"crackFrontDist", 10, "crackFrontDist", &C::crackFrontDist},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"autoDetectValue", 11, "autoDetectValue", &C::autoDetectValue},
    };
  }

  kefC_XFEMCrack() = default;
  explicit kefC_XFEMCrack(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetCrackDomain() const { return crackDomain; }
  void SetCrackDomain(const rgnC_Region& v) { AssertEditable(); crackDomain = v; }
  const rgnC_Region& GetCrackLocation() const { return crackLocation; }
  void SetCrackLocation(const rgnC_Region& v) { AssertEditable(); crackLocation = v; }
  bool GetAllowCrackGrowth() const { return allowCrackGrowth; }
  void SetAllowCrackGrowth(bool v) { AssertEditable(); allowCrackGrowth = v; }
  double GetSingularityCalcRadius() const { return singularityCalcRadius; }
  void SetSingularityCalcRadius(double v) { AssertEditable(); singularityCalcRadius = v; }
  const cow_String& GetInteractionProperty() const { return interactionProperty; }
  void SetInteractionProperty(const cow_String& v) { AssertEditable(); interactionProperty = v; }
  const cow_List<std::int32_t>& GetElemId() const { return elemId; }
  void SetElemId(const cow_List<std::int32_t>& v) { AssertEditable(); elemId = v; }
  const cow_List<std::int32_t>& GetNodeId() const { return nodeId; }
  void SetNodeId(const cow_List<std::int32_t>& v) { AssertEditable(); nodeId = v; }
  const cow_List<std::int32_t>& GetHasCrackFront() const { return hasCrackFront; }
  void SetHasCrackFront(const cow_List<std::int32_t>& v) { AssertEditable(); hasCrackFront = v; }
  const cow_List<double>& GetCrackPlaneDist() const { return crackPlaneDist; }
  void SetCrackPlaneDist(const cow_List<double>& v) { AssertEditable(); crackPlaneDist = v; }
  const cow_List<double>& GetCrackFrontDist() const { return crackFrontDist; }
  void SetCrackFrontDist(const cow_List<double>& v) { AssertEditable(); crackFrontDist = v; }
  bool GetAutoDetectValue() const { return autoDetectValue; }
  void SetAutoDetectValue(bool v) { AssertEditable(); autoDetectValue = v; }

 private:
  rgnC_Region crackDomain;
  rgnC_Region crackLocation;
  bool allowCrackGrowth = true;
  fw_Unspecified singularityCalcRadius = kefC_kUnspecified;  // unspecified: no singularity
  cow_String interactionProperty;
  cow_List<std::int32_t> elemId;
  cow_List<std::int32_t> nodeId;
  cow_List<std::int32_t> hasCrackFront;
  cow_List<double> crackPlaneDist;
  cow_List<double> crackFrontDist;
  bool autoDetectValue = false;
};

extern template class fw_PersistentClass<kefC_XFEMCrack, kefC_Crack>;
