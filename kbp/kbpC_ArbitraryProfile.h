#pragma once
// A thin-walled section given by a path of points. The table has one row per point: x, y and
// the thickness of the segment that ends at the point. The first point starts the path, so its
// thickness cell is not used; a table without the thickness column describes no segments.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"
#include "platform/base/cow_2DArray.h"

class kbpC_ArbitraryProfile : public fw_PersistentClass<kbpC_ArbitraryProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_ArbitraryProfile";
  static constexpr const char* kScriptName = "ArbitraryProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 13); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_ArbitraryProfile;
    return std::tuple{
        fw_Field{"table", 0, "table", &C::table},
    };
  }

  kbpC_ArbitraryProfile() = default;
  explicit kbpC_ArbitraryProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }

 private:
  cow_2DArray<double> table{{0.0, 0.0, 0.0}, {0.1, 0.0, 0.005}, {0.1, 0.1, 0.005}};
};

extern template class fw_PersistentClass<kbpC_ArbitraryProfile, kbpC_BeamProfile>;
