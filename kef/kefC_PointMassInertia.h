#pragma once
// A point mass with rotary inertia at the points of a region: an isotropic mass or a mass per
// direction (mass1 to mass3), and the inertia tensor in a coordinate system.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Inertia.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kefC_PointMassInertia : public fw_PersistentClass<kefC_PointMassInertia, kefC_Inertia> {
 public:
  using BaseClass = kefC_Inertia;
  using RootClass = kefC_Inertia;
  static constexpr const char* kClassName = "kefC_PointMassInertia";
  static constexpr const char* kScriptName = "PointMassInertia";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 16); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_PointMassInertia;
    return std::tuple{
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"mass", 2, "mass", &C::mass},
        fw_Field{"i11", 3, "i11", &C::i11},
        fw_Field{"i22", 4, "i22", &C::i22},
        fw_Field{"i33", 5, "i33", &C::i33},
        fw_Field{"i12", 6, "i12", &C::i12},
        fw_Field{"i13", 7, "i13", &C::i13},
        fw_Field{"i23", 8, "i23", &C::i23},
        fw_Field{"csys", 9, "localCsys", &C::csys},
        fw_Field{"alpha", 10, "alpha", &C::alpha},
        fw_Field{"composite", 11, "composite", &C::composite},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"mass1", 12, "mass1", &C::mass1},
        fw_Field{"mass2", 13, "mass2", &C::mass2},
        fw_Field{"mass3", 14, "mass3", &C::mass3},
    };
  }

  kefC_PointMassInertia() = default;
  explicit kefC_PointMassInertia(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { AssertEditable(); region = v; }
  double GetMass() const { return mass; }
  void SetMass(double v) { AssertEditable(); mass = v; }
  double GetI11() const { return i11; }
  void SetI11(double v) { AssertEditable(); i11 = v; }
  double GetI22() const { return i22; }
  void SetI22(double v) { AssertEditable(); i22 = v; }
  double GetI33() const { return i33; }
  void SetI33(double v) { AssertEditable(); i33 = v; }
  double GetI12() const { return i12; }
  void SetI12(double v) { AssertEditable(); i12 = v; }
  double GetI13() const { return i13; }
  void SetI13(double v) { AssertEditable(); i13 = v; }
  double GetI23() const { return i23; }
  void SetI23(double v) { AssertEditable(); i23 = v; }
  const cow_String& GetCsys() const { return csys; }
  void SetCsys(const cow_String& v) { AssertEditable(); csys = v; }
  double GetAlpha() const { return alpha; }
  void SetAlpha(double v) { AssertEditable(); alpha = v; }
  double GetComposite() const { return composite; }
  void SetComposite(double v) { AssertEditable(); composite = v; }
  double GetMass1() const { return mass1; }
  void SetMass1(double v) { AssertEditable(); mass1 = v; }
  double GetMass2() const { return mass2; }
  void SetMass2(double v) { AssertEditable(); mass2 = v; }
  double GetMass3() const { return mass3; }
  void SetMass3(double v) { AssertEditable(); mass3 = v; }

 private:
  rgnC_Region region;
  double mass = 0.0;
  double i11 = 0.0;
  double i22 = 0.0;
  double i33 = 0.0;
  double i12 = 0.0;
  double i13 = 0.0;
  double i23 = 0.0;
  cow_String csys;  // the name of a local coordinate system; empty for the global one
  double alpha = 0.0;
  double composite = 0.0;
  double mass1 = 0.0;
  double mass2 = 0.0;
  double mass3 = 0.0;
};

extern template class fw_PersistentClass<kefC_PointMassInertia, kefC_Inertia>;
