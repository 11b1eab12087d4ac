#pragma once
// A thin or thick walled tube of outer radius r and wall thickness t.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"
#include "platform/base/omu_PrimEnum.h"

class kbpC_PipeProfile : public fw_PersistentClass<kbpC_PipeProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  enum class IntegrationSchemeEnm : std::int32_t { THIN_WALL = 0, THICK_WALL = 1 };
  static constexpr omu_EnumLiteral kIntegrationSchemeLiterals[] = {{"THIN_WALL", 0}, {"THICK_WALL", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(IntegrationSchemeEnm) { return kIntegrationSchemeLiterals; }
  static constexpr const char* kClassName = "kbpC_PipeProfile";
  static constexpr const char* kScriptName = "PipeProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 5); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_PipeProfile;
    return std::tuple{
        fw_Field{"r", 0, "r", &C::r},
        fw_Field{"t", 1, "t", &C::t},
        fw_Field{"integrationScheme", 2, "integrationScheme", &C::integrationScheme},
    };
  }

  kbpC_PipeProfile() = default;
  explicit kbpC_PipeProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetR() const { return r; }
  void SetR(double v) { r = v; }
  double GetT() const { return t; }
  void SetT(double v) { t = v; }
  IntegrationSchemeEnm GetIntegrationScheme() const { return integrationScheme; }
  void SetIntegrationScheme(IntegrationSchemeEnm v) { integrationScheme = v; }

 private:
  double r = 0.05;
  double t = 0.005;
  IntegrationSchemeEnm integrationScheme = IntegrationSchemeEnm::THIN_WALL;
};

extern template class fw_PersistentClass<kbpC_PipeProfile, kbpC_BeamProfile>;
