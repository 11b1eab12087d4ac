#pragma once
// Heat capacitance at the points of a region, possibly depending on temperature and field
// variables.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Inertia.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_2DArray.h"
#include "platform/model/rgnC_Region.h"

class kefC_HeatCapacitance : public fw_PersistentClass<kefC_HeatCapacitance, kefC_Inertia> {
 public:
  using BaseClass = kefC_Inertia;
  using RootClass = kefC_Inertia;
  static constexpr const char* kClassName = "kefC_HeatCapacitance";
  static constexpr const char* kScriptName = "HeatCapacitance";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 18); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_HeatCapacitance;
    return std::tuple{
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
    };
  }

  kefC_HeatCapacitance() = default;
  explicit kefC_HeatCapacitance(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { AssertEditable(); region = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { AssertEditable(); temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { AssertEditable(); dependencies = v; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { AssertEditable(); table = v; }

 private:
  rgnC_Region region;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  cow_2DArray<double> table;
};

extern template class fw_PersistentClass<kefC_HeatCapacitance, kefC_Inertia>;
