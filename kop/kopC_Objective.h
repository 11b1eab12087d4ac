#pragma once
// One entry of an objective function: a design response with its weight and reference value.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kopC_Objective : public fw_PersistentClass<kopC_Objective, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kopC_Objective";
  static constexpr const char* kScriptName = "Objective";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 33); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_Objective;
    return std::tuple{
        fw_Field{"designResponse", 0, "designResponse", &C::designResponse},
        fw_Field{"weight", 1, "weight", &C::weight},
        fw_Field{"referenceValue", 2, "referenceValue", &C::referenceValue},
        fw_Field{"referenceValueVariable", 3, "referenceValueVariable", &C::referenceValueVariable},
        fw_Field{"suppressed", 4, "suppressed", &C::suppressed},
    };
  }

  kopC_Objective() = default;
  explicit kopC_Objective(const cls_ReadVisitor& reader);
  virtual ~kopC_Objective() = default;
  virtual void AssertValid() const;
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetDesignResponse() const { return designResponse; }
  void SetDesignResponse(const cow_String& v) { designResponse = v; }
  double GetWeight() const { return weight; }
  void SetWeight(double v) { weight = v; }
  double GetReferenceValue() const { return referenceValue; }
  void SetReferenceValue(double v) { referenceValue = v; }
  const cow_String& GetReferenceValueVariable() const { return referenceValueVariable; }
  void SetReferenceValueVariable(const cow_String& v) { referenceValueVariable = v; }
  bool GetSuppressed() const { return suppressed; }
  void SetSuppressed(bool v) { suppressed = v; }

 private:
  cow_String designResponse;
  double weight = 1.0;
  double referenceValue = kopC_kUnset;
  cow_String referenceValueVariable;
  bool suppressed = false;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kopC_Objective, mem_Allocated>;
