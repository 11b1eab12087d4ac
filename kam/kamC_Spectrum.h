#pragma once
// kamC_Spectrum, a response spectrum table: (value, frequency, damping) rows of a displacement, velocity or
// acceleration spectrum, with the gravity that scales it.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"
#include "platform/base/cow_2DArray.h"

class kamC_Spectrum : public fw_PersistentClass<kamC_Spectrum, kamC_Amplitude> {
 public:
  enum class SpectrumTypeEnm : std::int32_t { DISPLACEMENT = 0, VELOCITY = 1, ACCELERATION = 2 };
  static constexpr omu_EnumLiteral kSpectrumTypeLiterals[] = {{"DISPLACEMENT", 0}, {"VELOCITY", 1}, {"ACCELERATION", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SpectrumTypeEnm) { return kSpectrumTypeLiterals; }

  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_Spectrum";
  static constexpr const char* kScriptName = "Spectrum";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 12); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_Spectrum;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"spectrumType", 1, "spectrumType", &C::spectrumType},
                                                        fw_Field{"gravity", 2, "gravity", &C::gravity},
                                                        fw_Field{"data", 3, "data", &C::data},
                                                    });
  }

  kamC_Spectrum() = default;
  explicit kamC_Spectrum(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  SpectrumTypeEnm GetSpectrumType() const { return spectrumType; }
  void SetSpectrumType(SpectrumTypeEnm v) { spectrumType = v; }
  double GetGravity() const { return gravity; }
  void SetGravity(double v) { gravity = v; }
  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }

 private:
  SpectrumTypeEnm spectrumType = SpectrumTypeEnm::ACCELERATION;
  double gravity = 1.0;
  cow_2DArray<double> data{0, 3};
};

extern template class fw_PersistentClass<kamC_Spectrum, kamC_Amplitude>;
