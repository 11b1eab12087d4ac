#pragma once
// A power spectral density definition: (frequency, real, imaginary) rows of a base motion or a
// force, or (band number, decibels, ...) rows in decibels against a reference, or a user subroutine.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"
#include "platform/base/cow_2DArray.h"

class kamC_PsdDefinition : public fw_PersistentClass<kamC_PsdDefinition, kamC_Amplitude> {
 public:
  enum class PsdTypeEnm : std::int32_t { BASE = 0, FORCE = 1, DB = 2 };
  static constexpr omu_EnumLiteral kPsdTypeLiterals[] = {{"BASE", 0}, {"FORCE", 1}, {"DB", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(PsdTypeEnm) { return kPsdTypeLiterals; }

  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_PsdDefinition";
  static constexpr const char* kScriptName = "PsdDefinition";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 13); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_PsdDefinition;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"unitType", 1, "unitType", &C::unitType},
                                                        fw_Field{"referencePower", 2, "referencePower", &C::referencePower},
                                                        fw_Field{"referenceGravityAcceleration", 3, "referenceGravityAcceleration", &C::referenceGravityAcceleration},
                                                        fw_Field{"userSubroutine", 4, "userSubroutine", &C::userSubroutine},
                                                        fw_Field{"dbReference", 5, "dbReference", &C::dbReference},
                                                        fw_Field{"data", 6, "data", &C::data},
                                                    });
  }

  kamC_PsdDefinition() = default;
  explicit kamC_PsdDefinition(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  PsdTypeEnm GetUnitType() const { return unitType; }
  void SetUnitType(PsdTypeEnm v) { unitType = v; }
  double GetReferencePower() const { return referencePower; }
  void SetReferencePower(double v) { referencePower = v; }
  double GetReferenceGravityAcceleration() const { return referenceGravityAcceleration; }
  void SetReferenceGravityAcceleration(double v) { referenceGravityAcceleration = v; }
  bool GetUserSubroutine() const { return userSubroutine; }
  void SetUserSubroutine(bool v) { userSubroutine = v; }
  double GetDbReference() const { return dbReference; }
  void SetDbReference(double v) { dbReference = v; }
  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }

 private:
  PsdTypeEnm unitType = PsdTypeEnm::BASE;
  double referencePower = 0.0;
  double referenceGravityAcceleration = 1.0;
  bool userSubroutine = false;
  double dbReference = 1.0;
  cow_2DArray<double> data{0, 3};
};

extern template class fw_PersistentClass<kamC_PsdDefinition, kamC_Amplitude>;
