#pragma once
// A bound on the thickness of the members a topology task builds.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_MemberSize : public fw_PersistentClass<kopC_MemberSize, kopC_GeometricRestriction> {
 public:
  enum class SizeRestrictionEnm : std::int32_t { MINIMUM = 0, MAXIMUM = 1 };
  static constexpr omu_EnumLiteral kSizeRestrictionLiterals[] = {{"MINIMUM", 0}, {"MAXIMUM", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SizeRestrictionEnm) { return kSizeRestrictionLiterals; }
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_MemberSize";
  static constexpr const char* kScriptName = "TopologyMemberSize";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 81); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_MemberSize;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"sizeRestriction", 1, "sizeRestriction", &C::sizeRestriction},
        fw_Field{"minThickness", 2, "minThickness", &C::minThickness},
        fw_Field{"maxThickness", 3, "maxThickness", &C::maxThickness},
    };
  }

  kopC_MemberSize() = default;
  explicit kopC_MemberSize(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  SizeRestrictionEnm GetSizeRestriction() const { return sizeRestriction; }
  void SetSizeRestriction(SizeRestrictionEnm v) { sizeRestriction = v; }
  double GetMinThickness() const { return minThickness; }
  void SetMinThickness(double v) { minThickness = v; }
  double GetMaxThickness() const { return maxThickness; }
  void SetMaxThickness(double v) { maxThickness = v; }

 private:
  rgnC_Region region;
  SizeRestrictionEnm sizeRestriction = SizeRestrictionEnm::MINIMUM;
  double minThickness = kopC_kUnset;
  double maxThickness = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_MemberSize, kopC_GeometricRestriction>;
