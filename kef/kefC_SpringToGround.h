#pragma once
// A spring or dashpot from each point of a region to ground, acting in one degree of freedom.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Spring.h"
#include "kef/kefC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kefC_SpringToGround : public fw_PersistentClass<kefC_SpringToGround, kefC_Spring> {
 public:
  using BaseClass = kefC_Spring;
  using RootClass = kefC_Spring;
  static constexpr const char* kClassName = "kefC_SpringToGround";
  static constexpr const char* kScriptName = "SpringDashpotToGround";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 20); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_SpringToGround;
    return std::tuple{
        fw_Field{"springStiffness", 0, "springStiffness", &C::springStiffness},
        fw_Field{"applySpring", 1, "applySpring", &C::applySpring},
        fw_Field{"dashpotCoeff", 2, "dashpotCoefficient", &C::dashpotCoeff},
        fw_Field{"applyDashpot", 3, "applyDashpot", &C::applyDashpot},
        fw_Field{"dof1", 4, "dof1", &C::dof1},
        fw_Field{"dof2", 5, "dof2", &C::dof2},
        fw_Field{"csys", 6, "localCsys", &C::csys},
        fw_Field{"suppress", 7, "suppress", &C::suppress},
        fw_Field{"region", 8, "region", &C::region},
    };
  }

  kefC_SpringToGround() = default;
  explicit kefC_SpringToGround(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { AssertEditable(); region = v; }

 private:
  rgnC_Region region;
};

extern template class fw_PersistentClass<kefC_SpringToGround, kefC_Spring>;
