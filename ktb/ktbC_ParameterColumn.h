#pragma once
// One parameter of a parameter table: its name, description and unit, its type, its default value
// and the values it may take (none listed: any value of its type), each kept in the member of the
// parameter's type.
#include <cstdint>
#include <vector>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;
struct cls_ScriptField;

class ktbC_ParameterColumn : public fw_PersistentClass<ktbC_ParameterColumn, mem_Allocated> {
 public:
  // The type of the parameter; INTEGER values are kept in "paramDefaultVal_int" and
  // "paramAllowedVal_int", FLOAT and STRING ones in the lists of their own suffix.
  enum class parameterTypeEnm : std::int32_t { INTEGER = 0, FLOAT = 1, STRING = 2 };
  static constexpr omu_EnumLiteral kParameterTypeLiterals[] = {{"INTEGER", 0}, {"FLOAT", 1}, {"STRING", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(parameterTypeEnm) { return kParameterTypeLiterals; }
  static constexpr const char* kClassName = "ktbC_ParameterColumn";
  static constexpr const char* kScriptName = "ParameterColumn";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 5); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_ParameterColumn;
    return std::tuple{
        fw_Field{"paramName", 0, "name", &C::paramName},
        fw_Field{"paramDescription", 1, "paramDescription", &C::paramDescription},
        fw_Field{"paramUnit", 2, "paramUnit", &C::paramUnit},
        fw_Field{"parameterType", 3, "parameterType", &C::parameterType},
        fw_Field{"paramDefaultVal_float", 4, "paramDefaultVal_float", &C::paramDefaultVal_float},
        fw_Field{"paramDefaultVal_int", 5, "paramDefaultVal_int", &C::paramDefaultVal_int},
        fw_Field{"paramDefaultVal_str", 6, "paramDefaultVal_str", &C::paramDefaultVal_str},
        fw_Field{"paramAllowedVal_float", 7, "paramAllowedVal_float", &C::paramAllowedVal_float},
        fw_Field{"paramAllowedVal_int", 8, "paramAllowedVal_int", &C::paramAllowedVal_int},
        fw_Field{"paramAllowedVal_str", 9, "paramAllowedVal_str", &C::paramAllowedVal_str},
    };
  }

  // Scripts see the default and the allowed values as one member each ("default",
  // "allowedValues") of the column's parameter type; the stored per-type fields stay reachable.
  static std::vector<cls_ScriptField> ScriptFace(std::vector<cls_ScriptField> stored);

  ktbC_ParameterColumn() = default;
  explicit ktbC_ParameterColumn(const cls_ReadVisitor& reader);
  virtual ~ktbC_ParameterColumn() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetParamName() const { return paramName; }
  void SetParamName(const cow_String& v) { paramName = v; }
  const cow_String& GetParamDescription() const { return paramDescription; }
  void SetParamDescription(const cow_String& v) { paramDescription = v; }
  const cow_String& GetParamUnit() const { return paramUnit; }
  void SetParamUnit(const cow_String& v) { paramUnit = v; }
  parameterTypeEnm GetParameterType() const { return parameterType; }
  void SetParameterType(parameterTypeEnm v) { parameterType = v; }
  double GetParamDefaultVal_float() const { return paramDefaultVal_float; }
  void SetParamDefaultVal_float(double v) { paramDefaultVal_float = v; }
  std::int32_t GetParamDefaultVal_int() const { return paramDefaultVal_int; }
  void SetParamDefaultVal_int(std::int32_t v) { paramDefaultVal_int = v; }
  const cow_String& GetParamDefaultVal_str() const { return paramDefaultVal_str; }
  void SetParamDefaultVal_str(const cow_String& v) { paramDefaultVal_str = v; }
  const cow_List<double>& GetParamAllowedVal_float() const { return paramAllowedVal_float; }
  void SetParamAllowedVal_float(const cow_List<double>& v) { paramAllowedVal_float = v; }
  const cow_List<std::int32_t>& GetParamAllowedVal_int() const { return paramAllowedVal_int; }
  void SetParamAllowedVal_int(const cow_List<std::int32_t>& v) { paramAllowedVal_int = v; }
  const cow_List<cow_String>& GetParamAllowedVal_str() const { return paramAllowedVal_str; }
  void SetParamAllowedVal_str(const cow_List<cow_String>& v) { paramAllowedVal_str = v; }

 private:
  cow_String paramName;
  cow_String paramDescription;
  cow_String paramUnit;
  parameterTypeEnm parameterType = parameterTypeEnm::FLOAT;
  double paramDefaultVal_float = 0.0;
  std::int32_t paramDefaultVal_int = 0;
  cow_String paramDefaultVal_str;
  cow_List<double> paramAllowedVal_float;
  cow_List<std::int32_t> paramAllowedVal_int;
  cow_List<cow_String> paramAllowedVal_str;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_ParameterColumn, mem_Allocated>;
