#pragma once
// kamC_SpectrumAmplitude, a response spectrum defined by a table or calculated from an event amplitude.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_OrLiteral.h"
#include "kam/kamC_Amplitude.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_String.h"

class kamC_SpectrumAmplitude : public fw_PersistentClass<kamC_SpectrumAmplitude, kamC_Amplitude> {
 public:
  enum class MethodEnm : std::int32_t { DEFINE = 0, CALCULATE = 1 };
  enum class SpecificationUnitsEnm : std::int32_t { DISPLACEMENT = 0, VELOCITY = 1, ACCELERATION = 2, GRAVITY = 3 };
  enum class EventUnitsEnm : std::int32_t { EVENT_DISPLACEMENT = 0, EVENT_VELOCITY = 1, EVENT_ACCELERATION = 2, EVENT_GRAVITY = 3 };
  enum class SolutionEnm : std::int32_t { ABSOLUTE_VALUE = 0, RELATIVE_VALUE = 1 };
  static constexpr omu_EnumLiteral kMethodLiterals[] = {{"DEFINE", 0}, {"CALCULATE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MethodEnm) { return kMethodLiterals; }
  static constexpr omu_EnumLiteral kSpecificationUnitsLiterals[] = {{"DISPLACEMENT", 0}, {"VELOCITY", 1}, {"ACCELERATION", 2}, {"GRAVITY", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SpecificationUnitsEnm) { return kSpecificationUnitsLiterals; }
  static constexpr omu_EnumLiteral kEventUnitsLiterals[] = {{"EVENT_DISPLACEMENT", 0}, {"EVENT_VELOCITY", 1}, {"EVENT_ACCELERATION", 2}, {"EVENT_GRAVITY", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(EventUnitsEnm) { return kEventUnitsLiterals; }
  static constexpr omu_EnumLiteral kSolutionLiterals[] = {{"ABSOLUTE_VALUE", 0}, {"RELATIVE_VALUE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SolutionEnm) { return kSolutionLiterals; }

  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_SpectrumAmplitude";
  static constexpr const char* kScriptName = "SpectrumAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 11); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_SpectrumAmplitude;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"method", 1, "method", &C::method},
                                                        fw_Field{"specificationUnits", 2, "specificationUnits", &C::specificationUnits},
                                                        fw_Field{"eventUnits", 3, "eventUnits", &C::eventUnits},
                                                        fw_Field{"solution", 4, "solution", &C::solution},
                                                        fw_Field{"timeIncrement", 5, "timeIncrement", &C::timeIncrement},
                                                        fw_Field{"gravity", 6, "gravity", &C::gravity},
                                                        fw_Field{"criticalDamping", 7, "criticalDamping", &C::criticalDamping},
                                                        fw_Field{"data", 8, "data", &C::data},
                                                        fw_Field{"amplitude", 9, "amplitude", &C::amplitude},
                                                    });
  }

  kamC_SpectrumAmplitude() = default;
  explicit kamC_SpectrumAmplitude(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  MethodEnm GetMethod() const { return method; }
  void SetMethod(MethodEnm v) { method = v; }
  SpecificationUnitsEnm GetSpecificationUnits() const { return specificationUnits; }
  void SetSpecificationUnits(SpecificationUnitsEnm v) { specificationUnits = v; }
  EventUnitsEnm GetEventUnits() const { return eventUnits; }
  void SetEventUnits(EventUnitsEnm v) { eventUnits = v; }
  SolutionEnm GetSolution() const { return solution; }
  void SetSolution(SolutionEnm v) { solution = v; }
  double GetTimeIncrement() const { return timeIncrement; }
  void SetTimeIncrement(double v) { timeIncrement = v; }
  double GetGravity() const { return gravity; }
  void SetGravity(double v) { gravity = v; }
  double GetCriticalDamping() const { return criticalDamping; }
  void SetCriticalDamping(double v) { criticalDamping = v; }
  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }
  const cow_String& GetAmplitude() const { return amplitude; }
  void SetAmplitude(const cow_String& v) { amplitude = v; }

 private:
  MethodEnm method = MethodEnm::DEFINE;
  SpecificationUnitsEnm specificationUnits = SpecificationUnitsEnm::ACCELERATION;
  EventUnitsEnm eventUnits = EventUnitsEnm::EVENT_ACCELERATION;
  SolutionEnm solution = SolutionEnm::ABSOLUTE_VALUE;
  fw_Unspecified timeIncrement = kamC_kUnspecified;
  fw_Unspecified gravity = kamC_kUnspecified;
  fw_Unspecified criticalDamping = kamC_kUnspecified;
  cow_2DArray<double> data;
  cow_String amplitude;
};

extern template class fw_PersistentClass<kamC_SpectrumAmplitude, kamC_Amplitude>;
