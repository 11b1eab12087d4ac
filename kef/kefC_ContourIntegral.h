#pragma once
// A contour integral crack: a crack front and tip with the direction of crack extension, given by
// the crack normal or by q vectors.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Crack.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_List.h"
#include "platform/model/rgnC_Region.h"

class kefC_ContourIntegral : public fw_PersistentClass<kefC_ContourIntegral, kefC_Crack> {
 public:
  using BaseClass = kefC_Crack;
  using RootClass = kefC_Crack;
  static constexpr const char* kClassName = "kefC_ContourIntegral";
  static constexpr const char* kScriptName = "ContourIntegral";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 12); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_ContourIntegral;
    return std::tuple{
        fw_Field{"symmetric", 1, "symmetric", &C::symmetric},
        fw_Field{"crackFront", 2, "crackFront", &C::crackFront},
        fw_Field{"crackTip", 3, "crackTip", &C::crackTip},
        fw_Field{"extensionVectorMethod", 4, "extensionDirectionMethod", &C::extensionVectorMethod},
        fw_Field{"crackNormal", 5, "crackNormal", &C::crackNormal},
        fw_Field{"qVectors", 6, "qVectors", &C::qVectors},
        fw_Field{"midNodePosition", 7, "midNodePosition", &C::midNodePosition},
        fw_Field{"collapsedElementAtTip", 8, "collapsedElementAtTip", &C::collapsedElementAtTip},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
    };
  }

  kefC_ContourIntegral() = default;
  explicit kefC_ContourIntegral(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  bool GetSymmetric() const { return symmetric; }
  void SetSymmetric(bool v) { AssertEditable(); symmetric = v; }
  const rgnC_Region& GetCrackFront() const { return crackFront; }
  void SetCrackFront(const rgnC_Region& v) { AssertEditable(); crackFront = v; }
  const rgnC_Region& GetCrackTip() const { return crackTip; }
  void SetCrackTip(const rgnC_Region& v) { AssertEditable(); crackTip = v; }
  kefC_extensionVectorMethodEnm GetExtensionVectorMethod() const { return extensionVectorMethod; }
  void SetExtensionVectorMethod(kefC_extensionVectorMethodEnm v) { AssertEditable(); extensionVectorMethod = v; }
  const cow_List<double>& GetCrackNormal() const { return crackNormal; }
  void SetCrackNormal(const cow_List<double>& v) { AssertEditable(); crackNormal = v; }
  const cow_2DArray<double>& GetQVectors() const { return qVectors; }
  void SetQVectors(const cow_2DArray<double>& v) { AssertEditable(); qVectors = v; }
  double GetMidNodePosition() const { return midNodePosition; }
  void SetMidNodePosition(double v) { AssertEditable(); midNodePosition = v; }
  kefC_collapsedElementAtTipEnm GetCollapsedElementAtTip() const { return collapsedElementAtTip; }
  void SetCollapsedElementAtTip(kefC_collapsedElementAtTipEnm v) { AssertEditable(); collapsedElementAtTip = v; }

 private:
  bool symmetric = false;
  rgnC_Region crackFront;
  rgnC_Region crackTip;
  kefC_extensionVectorMethodEnm extensionVectorMethod = kefC_extensionVectorMethodEnm::CRACK_NORMAL;
  cow_List<double> crackNormal;  // two points, six coordinates
  cow_2DArray<double> qVectors;  // one row of two points (six coordinates) per vector
  double midNodePosition = 0.5;
  kefC_collapsedElementAtTipEnm collapsedElementAtTip = kefC_collapsedElementAtTipEnm::NONE;
};

extern template class fw_PersistentClass<kefC_ContourIntegral, kefC_Crack>;
