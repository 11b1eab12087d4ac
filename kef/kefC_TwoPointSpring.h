#pragma once
// A spring or dashpot between pairs of points, acting along the line joining them or between a
// fixed degree of freedom at each end.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Spring.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_List.h"
#include "platform/model/rgnC_Region.h"

class kefC_TwoPointSpring : public fw_PersistentClass<kefC_TwoPointSpring, kefC_Spring> {
 public:
  using BaseClass = kefC_Spring;
  using RootClass = kefC_Spring;
  static constexpr const char* kClassName = "kefC_TwoPointSpring";
  static constexpr const char* kScriptName = "TwoPointSpringDashpot";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 21); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_TwoPointSpring;
    return std::tuple{
        fw_Field{"springStiffness", 0, "springStiffness", &C::springStiffness},
        fw_Field{"applySpring", 1, "applySpring", &C::applySpring},
        fw_Field{"dashpotCoeff", 2, "dashpotCoefficient", &C::dashpotCoeff},
        fw_Field{"applyDashpot", 3, "applyDashpot", &C::applyDashpot},
        fw_Field{"dof1", 4, "dof1", &C::dof1},
        fw_Field{"dof2", 5, "dof2", &C::dof2},
        fw_Field{"csys", 6, "localCsys", &C::csys},
        fw_Field{"suppress", 7, "suppress", &C::suppress},
        fw_Field{"regionPairs", 8, "regionPairs", &C::regionPairs},
        fw_Field{"axis", 9, "axis", &C::axis},
    };
  }

  kefC_TwoPointSpring() = default;
  explicit kefC_TwoPointSpring(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<rgnC_Region>& GetRegionPairs() const { return regionPairs; }
  void SetRegionPairs(const cow_List<rgnC_Region>& v) { AssertEditable(); regionPairs = v; }
  kefC_SpringAxisTypeEnum GetAxis() const { return axis; }
  void SetAxis(kefC_SpringAxisTypeEnum v) { AssertEditable(); axis = v; }

 private:
  cow_List<rgnC_Region> regionPairs;  // the two regions of each pair, pair after pair
  kefC_SpringAxisTypeEnum axis = kefC_SpringAxisTypeEnum::NODAL_LINE;
};

extern template class fw_PersistentClass<kefC_TwoPointSpring, kefC_Spring>;
