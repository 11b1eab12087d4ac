#pragma once
// The steps, load cases and modes a single-term request reads.
#include <cstdint>
#include <tuple>
#include <vector>

#include "framework/fw_PersistentClass.h"
#include "platform/base/cow_String.h"
#include "platform/base/cow_List.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;
struct cls_ScriptField;

class kopC_StepOption : public fw_PersistentClass<kopC_StepOption, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kopC_StepOption";
  static constexpr const char* kScriptName = "StepOption";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 23); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_StepOption;
    return std::tuple{
        fw_Field{"model", 0, "model", &C::model},
        fw_Field{"multipleStep", 1, "multipleStep", &C::multipleStep},
        fw_Field{"loadCase", 2, "loadCase", &C::loadCase},
        fw_Field{"procedureCategory", 3, "procedureCategory", &C::procedureCategory},
        fw_Field{"useAllModes", 4, "useAllModes", &C::useAllModes},
        fw_Field{"lowerMode", 5, "lowerMode", &C::lowerMode},
        fw_Field{"upperMode", 6, "upperMode", &C::upperMode},
        fw_Field{"modes", 7, "modes", &C::modes},
    };
  }

  kopC_StepOption() = default;
  explicit kopC_StepOption(const cls_ReadVisitor& reader);
  virtual ~kopC_StepOption() = default;
  virtual void AssertValid() const;
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetModel() const { return model; }
  void SetModel(const cow_String& v) { model = v; }
  const cow_String& GetMultipleStep() const { return multipleStep; }
  // A step name, "ALL", or one of the step sets of kopC_StepSetEnm; a text that reads as a step set
  // ("ALL_" and more) but is none of them is refused with the enumeration's message.
  void SetMultipleStep(const cow_String& v);
  // Whether the option names a step set rather than one step.
  bool IsStepSet() const;
  // Scripts set multipleStep through the same check as SetMultipleStep.
  static std::vector<cls_ScriptField> ScriptFace(std::vector<cls_ScriptField> stored);
  const cow_String& GetLoadCase() const { return loadCase; }
  void SetLoadCase(const cow_String& v) { loadCase = v; }
  const cow_String& GetProcedureCategory() const { return procedureCategory; }
  void SetProcedureCategory(const cow_String& v) { procedureCategory = v; }
  bool GetUseAllModes() const { return useAllModes; }
  void SetUseAllModes(bool v) { useAllModes = v; }
  std::int32_t GetLowerMode() const { return lowerMode; }
  void SetLowerMode(std::int32_t v) { lowerMode = v; }
  std::int32_t GetUpperMode() const { return upperMode; }
  void SetUpperMode(std::int32_t v) { upperMode = v; }
  const cow_List<std::int32_t>& GetModes() const { return modes; }
  void SetModes(const cow_List<std::int32_t>& v) { modes = v; }

 private:
  cow_String model;
  cow_String multipleStep;
  cow_String loadCase;
  cow_String procedureCategory;
  bool useAllModes = true;
  std::int32_t lowerMode = 1;
  std::int32_t upperMode = 1;
  cow_List<std::int32_t> modes;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kopC_StepOption, mem_Allocated>;
