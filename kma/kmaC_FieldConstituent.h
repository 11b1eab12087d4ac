#pragma once
// One constituent of a mean-field homogenized composite, held by name in the model's constituent
// repository ("fieldConstituents") and named by a mean-field homogenization option: the material
// it is made of, whether it is the matrix or an inclusion, its volume fraction, and for an
// inclusion its shape, aspect ratio, isotropization coefficient and orientation.
//
// Blank doubles hold the largest finite double and are skipped by the rules. The orientation
// table holds, per row, the data the orientation kind needs: a direction (3 columns) for FIXED,
// the normal of the plane (3 columns) for RANDOM_2D, the six components a11 a22 a33 a12 a13 a23 of
// the second-order orientation tensor for ORIENTATION_TENSOR, and nothing for RANDOM_3D.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_OrLiteral.h"
#include <limits>

#include "kma/kmaC_MaterialTable.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_FieldConstituent : public fw_PersistentClass<kmaC_FieldConstituent, mem_Allocated> {
 public:
  enum class TypeEnm : std::int32_t { MATRIX = 0, INCLUSION = 1 };
  enum class ShapeEnm : std::int32_t { SPHERE = 0, PROLATE = 1, OBLATE = 2, CYLINDER = 3, PENNY = 4 };
  enum class OrientationEnm : std::int32_t { RANDOM_3D = 0, RANDOM_2D = 1, FIXED = 2, ORIENTATION_TENSOR = 3 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"MATRIX", 0}, {"INCLUSION", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kShapeLiterals[] = {
      {"SPHERE", 0}, {"PROLATE", 1}, {"OBLATE", 2}, {"CYLINDER", 3}, {"PENNY", 4}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kOrientationLiterals[] = {
      {"RANDOM_3D", 0}, {"RANDOM_2D", 1}, {"FIXED", 2}, {"ORIENTATION_TENSOR", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ShapeEnm) { return kShapeLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(OrientationEnm) { return kOrientationLiterals; }

  static constexpr const char* kClassName = "kmaC_FieldConstituent";
  static constexpr const char* kScriptName = "FieldConstituent";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 140); }
  static constexpr double kBlank = std::numeric_limits<double>::max();

  static constexpr auto Fields() {
    using C = kmaC_FieldConstituent;
    return std::tuple{
        fw_Field{"material", 0, "material", &C::material},
        fw_Field{"type", 1, "type", &C::type},
        fw_Field{"volumeFraction", 2, "volumeFraction", &C::volumeFraction},
        fw_Field{"isotropizationCoefficient", 3, "isotropizationCoefficient", &C::isotropizationCoefficient},
        fw_Field{"shape", 4, "shape", &C::shape},
        fw_Field{"aspectRatio", 5, "aspectRatio", &C::aspectRatio},
        fw_Field{"orientation", 6, "orientation", &C::orientation},
        fw_Field{"temperatureDependency", 7, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 8, "dependencies", &C::dependencies},
        fw_Field{"table", 9, "table", &C::table},
    };
  }

  kmaC_FieldConstituent() = default;
  kmaC_FieldConstituent(const kmaC_FieldConstituent&) = default;
  kmaC_FieldConstituent& operator=(const kmaC_FieldConstituent&) = default;
  explicit kmaC_FieldConstituent(const cls_ReadVisitor& r);
  virtual ~kmaC_FieldConstituent() = default;
  virtual void AssertValid() const;

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String fieldConstituentRepositoryCmd() { return "fieldConstituents"; }
  static cow_String materialCmd() { return "material"; }
  static cow_String typeCmd() { return "type"; }
  static cow_String volumeFractionCmd() { return "volumeFraction"; }
  static cow_String isotropizationCoefficientCmd() { return "isotropizationCoefficient"; }
  static cow_String shapeCmd() { return "shape"; }
  static cow_String aspectRatioCmd() { return "aspectRatio"; }
  static cow_String orientationCmd() { return "orientation"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  const cls_Uid& GetUid() const { return uid; }
  const cow_String& GetMaterial() const { return material; }
  void SetMaterial(const cow_String& v) { material = v; }
  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  double GetVolumeFraction() const { return volumeFraction; }
  void SetVolumeFraction(double v) { volumeFraction = v; }
  double GetIsotropizationCoefficient() const { return isotropizationCoefficient; }
  void SetIsotropizationCoefficient(double v) { isotropizationCoefficient = v; }
  ShapeEnm GetShape() const { return shape; }
  void SetShape(ShapeEnm v) { shape = omu_PrimEnum<ShapeEnm, 1>(v).GetValue(); }
  double GetAspectRatio() const { return aspectRatio; }
  void SetAspectRatio(double v) { aspectRatio = v; }
  OrientationEnm GetOrientation() const { return orientation; }
  void SetOrientation(OrientationEnm v) { orientation = omu_PrimEnum<OrientationEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

  // The columns a row of the orientation table needs for that orientation kind (0: no table).
  static int OrientationColumns(OrientationEnm o);

 private:
  cls_Uid uid;
  cow_String material;
  TypeEnm type = TypeEnm::INCLUSION;
  fw_Unspecified volumeFraction = kBlank;
  fw_Unspecified isotropizationCoefficient = kBlank;
  ShapeEnm shape = ShapeEnm::SPHERE;
  fw_Unspecified aspectRatio = kBlank;
  OrientationEnm orientation = OrientationEnm::RANDOM_3D;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_FieldConstituent, mem_Allocated>;
