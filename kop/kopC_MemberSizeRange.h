#pragma once
// Bounds the width of the members of a topology design from both sides.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_MemberSizeRange : public fw_PersistentClass<kopC_MemberSizeRange, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_MemberSizeRange";
  static constexpr const char* kScriptName = "TopologyMemberSizeRange";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 70); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_MemberSizeRange;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"minWidth", 1, "minWidth", &C::minWidth},
        fw_Field{"maxWidth", 2, "maxWidth", &C::maxWidth},
        fw_Field{"memberSize", 3, "memberSize", &C::memberSize},
    };
  }

  kopC_MemberSizeRange() = default;
  explicit kopC_MemberSizeRange(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetMinWidth() const { return minWidth; }
  void SetMinWidth(double v) { minWidth = v; }
  double GetMaxWidth() const { return maxWidth; }
  void SetMaxWidth(double v) { maxWidth = v; }
  double GetMemberSize() const { return memberSize; }
  void SetMemberSize(double v) { memberSize = v; }

 private:
  rgnC_Region region;
  double minWidth = kopC_kUnset;
  double maxWidth = kopC_kUnset;
  double memberSize = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_MemberSizeRange, kopC_GeometricRestriction>;
