#pragma once
// A field given analytically in a coordinate system: "csys" names a datum coordinate system (empty
// for the global system), "csysPartName" the part that holds it (empty for an assembly-level one), and
// "csysType" its kind.
#include <cstdint>

#include "kfd/kfdC_Field.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class kfdC_AnalyticalField : public kfdC_Field {
 public:
  using BaseClass = kfdC_Field;
  using RootClass = kfdC_Field;
  // The kind of the coordinate system the field is given in, as the host resolved the reference;
  // INVALID when the reference does not resolve. The values are those of dtu_DatumCsysType.
  enum class CsysTypeEnm : std::int32_t { INVALID = 0, RECTANGULAR = 1, CYLINDRICAL = 2, SPHERICAL = 3 };
  static constexpr omu_EnumLiteral kCsysTypeLiterals[] = {{"INVALID", 0}, {"RECTANGULAR", 1}, {"CYLINDRICAL", 2}, {"SPHERICAL", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(CsysTypeEnm) { return kCsysTypeLiterals; }
  static constexpr const char* kClassName = "kfdC_AnalyticalField";
  static constexpr const char* kScriptName = "AnalyticalField";
  static constexpr int kVersion = 700;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 2); }

  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  const cow_String& GetCsys() const { return csys; }
  void SetCsys(const cow_String& v) { csys = v; }
  CsysTypeEnm GetCsysType() const { return csysType; }
  void SetCsysType(CsysTypeEnm v) { csysType = v; }
  const cow_String& GetCsysPartName() const { return csysPartName; }
  void SetCsysPartName(const cow_String& v) { csysPartName = v; }
  kfdC_AnalyticalField* Copy() const { return static_cast<kfdC_AnalyticalField*>(DoCopy()); }
  static const char* csysCmd() { return "csys"; }
  static const char* csysPartNameCmd() { return "csysPartName"; }

 protected:
  kfdC_AnalyticalField() = default;
  kfdC_AnalyticalField(const kfdC_AnalyticalField&) = default;
  kfdC_AnalyticalField& operator=(const kfdC_AnalyticalField&) = default;
  explicit kfdC_AnalyticalField(const cls_ReadVisitor& r);
  // The checks every analytical field makes first.
  void AssertAnalyticalValid() const;

  cow_String csys;
  CsysTypeEnm csysType = CsysTypeEnm::RECTANGULAR;
  cow_String csysPartName;
};
