#pragma once
// A signal filter applied to output: the abstract root of the filter family. The frequency kinds
// (Butterworth, Chebyshev type I and II) smooth a history above a cutoff frequency; every kind
// may then apply an operation to the result and compare it with a limit, halting the analysis
// when it is reached. Repositories and readers hold filters through this class.
#include <cstdint>
#include <limits>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

// A limit left unset.
inline constexpr double kflC_kUnspecified = std::numeric_limits<double>::max();

class kflC_Filter : public mem_Allocated {
 public:
  enum class OperationEnm : std::int32_t { NONE = 0, MIN = 1, MAX = 2, ABS = 3 };
  static constexpr omu_EnumLiteral kOperationLiterals[] = {
      {"NONE", 0}, {"MIN", 1}, {"MAX", 2}, {"ABS", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(OperationEnm) { return kOperationLiterals; }

  using RootClass = kflC_Filter;
  static constexpr const char* kClassName = "kflC_Filter";
  static constexpr int kVersion = 849;
  static constexpr unsigned TypeId() { return fw_TypeId(849, 1); }

  virtual ~kflC_Filter() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kflC_Filter* Copy() const { return DoCopy(); }
  virtual kflC_Filter* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kflC_Filter& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kflC_Filter& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  OperationEnm GetOperation() const { return operation; }
  void SetOperation(OperationEnm v) { operation = v; }
  double GetLimit() const { return limit; }
  void SetLimit(double v) { limit = v; }
  bool GetHalt() const { return halt; }
  void SetHalt(bool v) { halt = v; }

 protected:
  kflC_Filter() = default;
  kflC_Filter(const kflC_Filter&) = default;
  kflC_Filter& operator=(const kflC_Filter&) = default;
  explicit kflC_Filter(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kflC_Filter& o) const = 0;
  // The rules of the cutoff and order of a frequency kind that supports orders 1 to maxOrder.
  void AssertFrequency(int maxOrder, const char* orderMessage) const;
  // The rule every kind ends with: a halt needs a limit.
  void AssertLimit() const;

  // Members of the frequency kinds (the operator filter lists neither in its field table).
  double cutoffFrequency = 0.0;  // to be given: no filter has a natural cutoff
  std::int32_t order = 2;
  // Members of every kind; each kind lists them in its field table.
  OperationEnm operation = OperationEnm::NONE;
  double limit = kflC_kUnspecified;
  bool halt = false;

 private:
  cls_Uid uid;
};

// Validation failures of the filters: the framework's validation exception with the message and
// the filter module's source position.
void kflC_Refuse(bool ok, const char* message);
inline constexpr const char* kflC_kValidationFile = "QMXOdbKflC.m/src/kflC_Filter";
inline constexpr int kflC_kValidationLine = 38;
