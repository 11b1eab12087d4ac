#pragma once
// A rigid body: regions that move with a reference point. Databases of older versions store the
// regions under other names; the steps of kcoC_RigidBody_702 and kcoC_RigidBody_720 rename them.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kcoC_RigidBody : public fw_PersistentClass<kcoC_RigidBody, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_RigidBody";
  static constexpr const char* kScriptName = "RigidBody";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 5); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_RigidBody;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"refPointRegion", 1, "refPointRegion", &C::refPointRegion},
        fw_Field{"bodyRegion", 2, "bodyRegion", &C::bodyRegion},
        fw_Field{"tieRegion", 3, "tieRegion", &C::tieRegion},
        fw_Field{"pinRegion", 4, "pinRegion", &C::pinRegion},
        fw_Field{"surfaceRegion", 5, "surfaceRegion", &C::surfaceRegion},
        fw_Field{"refPointAtCOM", 6, "refPointAtCOM", &C::refPointAtCOM},
        fw_Field{"isothermal", 7, "isothermal", &C::isothermal},
    };
  }

  kcoC_RigidBody() = default;
  explicit kcoC_RigidBody(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRefPointRegion() const { return refPointRegion; }
  void SetRefPointRegion(const rgnC_Region& v) { refPointRegion = v; }
  const rgnC_Region& GetBodyRegion() const { return bodyRegion; }
  void SetBodyRegion(const rgnC_Region& v) { bodyRegion = v; }
  const rgnC_Region& GetTieRegion() const { return tieRegion; }
  void SetTieRegion(const rgnC_Region& v) { tieRegion = v; }
  const rgnC_Region& GetPinRegion() const { return pinRegion; }
  void SetPinRegion(const rgnC_Region& v) { pinRegion = v; }
  const rgnC_Region& GetSurfaceRegion() const { return surfaceRegion; }
  void SetSurfaceRegion(const rgnC_Region& v) { surfaceRegion = v; }
  bool GetRefPointAtCOM() const { return refPointAtCOM; }
  void SetRefPointAtCOM(bool v) { refPointAtCOM = v; }
  bool GetIsothermal() const { return isothermal; }
  void SetIsothermal(bool v) { isothermal = v; }

 private:
  rgnC_Region refPointRegion;
  rgnC_Region bodyRegion;
  rgnC_Region tieRegion;
  rgnC_Region pinRegion;
  rgnC_Region surfaceRegion;
  bool refPointAtCOM = false;
  bool isothermal = false;
};

extern template class fw_PersistentClass<kcoC_RigidBody, kcoC_Constraint>;
