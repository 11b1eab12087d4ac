#pragma once
// An amplitude: a named function of time (or frequency) that scales loads and boundary
// conditions. The abstract root of the amplitude family; handles, the repository and readers hold
// amplitudes through this class, and each kind writes, copies, validates and compares itself.
#include <cstdint>
#include <limits>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;
class kamC_BaselineCorrection;

// The value an unspecified double holds (the solver's default applies).
inline constexpr double kamC_kUnspecified = std::numeric_limits<double>::max();

class kamC_Amplitude : public mem_Allocated {
 public:
  enum class TimeSpanEnm : std::int32_t { STEP = 0, TOTAL = 1 };
  static constexpr omu_EnumLiteral kTimeSpanLiterals[] = {{"STEP", 0}, {"TOTAL", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TimeSpanEnm) { return kTimeSpanLiterals; }

  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_Amplitude";
  static constexpr const char* kScriptName = "Amplitude";
  // The database version of the current layout of every amplitude class; the time span of the
  // root was added in it.
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 1); }

  // The root's persistent field; every kind writes it first.
  static constexpr auto Fields() {
    using C = kamC_Amplitude;
    return std::tuple{
        fw_Field{"timeSpan", 0, "timeSpan", &C::timeSpan},
    };
  }

  virtual ~kamC_Amplitude() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kamC_Amplitude* Copy() const { return DoCopy(); }
  virtual kamC_Amplitude* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kamC_Amplitude& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kamC_Amplitude& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  TimeSpanEnm GetTimeSpan() const { return timeSpan; }
  void SetTimeSpan(TimeSpanEnm v) { timeSpan = v; }
  // "Step Time" or "Total Time".
  static const char* TimeSpanLabel(TimeSpanEnm v);
  // The kind's display label ("Tabular"); empty for a kind without one.
  const char* DisplayLabel() const;

  // The baseline correction of the kinds that can carry one (null when the kind cannot or the
  // amplitude has none); the mutable form separates a shared correction first.
  virtual const kamC_BaselineCorrection* FindBaselineCorrection() const { return nullptr; }
  virtual kamC_BaselineCorrection* ModifyBaselineCorrection() { return nullptr; }

 protected:
  kamC_Amplitude() = default;
  kamC_Amplitude(const kamC_Amplitude&) = default;
  kamC_Amplitude& operator=(const kamC_Amplitude&) = default;
  explicit kamC_Amplitude(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kamC_Amplitude& o) const = 0;

 private:
  TimeSpanEnm timeSpan = TimeSpanEnm::STEP;
  cls_Uid uid;
};
