#pragma once
// A discrete fastener: one fastener at each point of a region, joined as the adherend says.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Fastener.h"
#include "kef/kefC_Enums.h"

class kefC_DiscreteFastener : public fw_PersistentClass<kefC_DiscreteFastener, kefC_Fastener> {
 public:
  using BaseClass = kefC_Fastener;
  using RootClass = kefC_Fastener;
  static constexpr const char* kClassName = "kefC_DiscreteFastener";
  static constexpr const char* kScriptName = "DiscreteFastener";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 9); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_DiscreteFastener;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"csys", 2, "csys", &C::csys},
        fw_Field{"ur1", 3, "ur1", &C::ur1},
        fw_Field{"ur2", 4, "ur2", &C::ur2},
        fw_Field{"ur3", 5, "ur3", &C::ur3},
        fw_Field{"influenceRadius", 6, "influenceRadius", &C::influenceRadius},
        fw_Field{"weightingMethod", 7, "weightingMethod", &C::weightingMethod},
        fw_Field{"coupling", 8, "coupling", &C::coupling},
        fw_Field{"rotCoupling", 9, "rotationalCoupling", &C::rotCoupling},
        fw_Field{"connectionType", 10, "adherend", &C::connectionType},
    };
  }

  kefC_DiscreteFastener() = default;
  explicit kefC_DiscreteFastener(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  kefC_DiscreteAdherendEnum GetConnectionType() const { return connectionType; }
  void SetConnectionType(kefC_DiscreteAdherendEnum v) { AssertEditable(); connectionType = v; }

 private:
  kefC_DiscreteAdherendEnum connectionType = kefC_DiscreteAdherendEnum::CONNECTOR;
};

extern template class fw_PersistentClass<kefC_DiscreteFastener, kefC_Fastener>;
