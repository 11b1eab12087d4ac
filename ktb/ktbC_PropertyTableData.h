#pragma once
// The data of a property table: one row per data point, the property values first, then the
// temperature when "isTemp" is set, then "numOfFieldVar" field variables and the parameters.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_PropertyTableData : public fw_PersistentClass<ktbC_PropertyTableData, mem_Allocated> {
 public:
  // Beyond the data: the end values held (CONSTANT), the end slopes continued (LINEAR), or no
  // values at all (NONE).
  enum class ExtrapolateTypeEnm : std::int32_t { CONSTANT = 0, LINEAR = 1, NONE = 2 };
  static constexpr omu_EnumLiteral kExtrapolateTypeLiterals[] = {{"CONSTANT", 0}, {"LINEAR", 1}, {"NONE", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ExtrapolateTypeEnm) { return kExtrapolateTypeLiterals; }
  // How "regularizeTolerance" is measured when irregular data are regularized: relative to the
  // range of the data, or in the data's own units.
  enum class RegularizeTypeEnm : std::int32_t { RELATIVE = 0, ABSOLUTE = 1 };
  static constexpr omu_EnumLiteral kRegularizeTypeLiterals[] = {{"RELATIVE", 0}, {"ABSOLUTE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(RegularizeTypeEnm) { return kRegularizeTypeLiterals; }
  static constexpr const char* kClassName = "ktbC_PropertyTableData";
  static constexpr const char* kScriptName = "PropertyTableData";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 7); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_PropertyTableData;
    return std::tuple{
        fw_Field{"label", 0, "label", &C::label},
        fw_Field{"extrapolateType", 1, "extrapolate", &C::extrapolateType},
        fw_Field{"isTemp", 2, "isTemp", &C::isTemp},
        fw_Field{"numOfFieldVar", 3, "numOfFieldVar", &C::numOfFieldVar},
        fw_Field{"regularizeTolerance", 4, "regularizeTolerance", &C::regularizeTolerance},
        fw_Field{"regularizeType", 5, "regularizeType", &C::regularizeType},
        fw_Field{"table", 6, "table", &C::table},
    };
  }

  ktbC_PropertyTableData() = default;
  explicit ktbC_PropertyTableData(const cls_ReadVisitor& reader);
  virtual ~ktbC_PropertyTableData() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetLabel() const { return label; }
  void SetLabel(const cow_String& v) { label = v; }
  ExtrapolateTypeEnm GetExtrapolateType() const { return extrapolateType; }
  void SetExtrapolateType(ExtrapolateTypeEnm v) { extrapolateType = v; }
  bool GetIsTemp() const { return isTemp; }
  void SetIsTemp(bool v) { isTemp = v; }
  std::int32_t GetNumOfFieldVar() const { return numOfFieldVar; }
  void SetNumOfFieldVar(std::int32_t v) { numOfFieldVar = v; }
  double GetRegularizeTolerance() const { return regularizeTolerance; }
  void SetRegularizeTolerance(double v) { regularizeTolerance = v; }
  RegularizeTypeEnm GetRegularizeType() const { return regularizeType; }
  void SetRegularizeType(RegularizeTypeEnm v) { regularizeType = v; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }

 private:
  cow_String label;
  ExtrapolateTypeEnm extrapolateType = ExtrapolateTypeEnm::CONSTANT;
  bool isTemp = false;
  std::int32_t numOfFieldVar = 0;
  double regularizeTolerance = 0.03;
  RegularizeTypeEnm regularizeType = RegularizeTypeEnm::RELATIVE;
  cow_2DArray<double> table;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_PropertyTableData, mem_Allocated>;
