#pragma once
// Old class versions and the database converter: each retired layout of a class declares, in
// SchemaChanges, the step that carries its rows to the next database version, and binds the
// conversion function that does it. The upgrade driver runs those steps over stored rows before
// any class reads them.
#include <map>
#include <string>
#include <vector>

#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_COW.h"
#include "platform/persist/dbc_Row.h"

class dbc_DatabaseConverter;

// void* (old row, new row, integer): the integer is the one given to BindConversionFunction.
using dbc_ConversionFn = void* (*)(const dbc_Row& oldRow, dbc_Row& newRow, int arg);

class dbc_OldClassVersion {
 public:
  static void* operator new(std::size_t n) { return mem_OperatorNewThrow(n); }
  static void operator delete(void* p) noexcept { mem_Free(p); }
  virtual ~dbc_OldClassVersion() = default;
  virtual void SchemaChanges(dbc_DatabaseConverter& converter) = 0;
};

class dbc_OldClassRegistrar {
 public:
  struct Entry {
    cow_CountedHld<dbc_OldClassVersion> holder;
    int kind;
  };
  void Register(const cow_CountedHld<dbc_OldClassVersion>& holder, int kind);
  const std::vector<Entry>& Entries() const noexcept { return entries_; }

 private:
  std::vector<Entry> entries_;
};

class dbc_ClassConverter {
 public:
  dbc_ClassConverter(std::string className, unsigned typeId, int fromVersion, int targetVersion)
      : className_(std::move(className)), typeId_(typeId), from_(fromVersion), target_(targetVersion) {}
  void BindConversionFunction(dbc_ConversionFn fn, int arg = 0) {
    fn_ = fn;
    arg_ = arg;
  }
  const std::string& ClassName() const noexcept { return className_; }
  unsigned TypeId() const noexcept { return typeId_; }
  int From() const noexcept { return from_; }
  int Target() const noexcept { return target_; }
  dbc_ConversionFn Function() const noexcept { return fn_; }
  int Arg() const noexcept { return arg_; }

 private:
  std::string className_;
  unsigned typeId_;
  int from_;
  int target_;
  dbc_ConversionFn fn_ = nullptr;
  int arg_ = 0;
};

// The changes that take the database to one target version.
class dbc_Converter {
 public:
  explicit dbc_Converter(int target) : target_(target) {}
  dbc_Converter(const dbc_Converter&) = delete;
  int Target() const noexcept { return target_; }
  // Declares that rows of the class stored at fromVersion move to this converter's target.
  dbc_ClassConverter& Upgrade(const char* className, unsigned typeId, int fromVersion);
  const std::vector<std::unique_ptr<dbc_ClassConverter>>& Steps() const noexcept { return steps_; }

 private:
  int target_;
  std::vector<std::unique_ptr<dbc_ClassConverter>> steps_;
};

class dbc_DatabaseConverter {
 public:
  dbc_DatabaseConverter() = default;
  dbc_DatabaseConverter(const dbc_DatabaseConverter&) = delete;
  // The converter of the step to the given database version (one per version).
  dbc_Converter& GetConverter(int targetDatabaseVersion);
  const std::map<int, std::unique_ptr<dbc_Converter>>& Converters() const noexcept { return converters_; }

  // A converter filled by every descriptor of the old-class registrar.
  static void CollectRegistered(dbc_DatabaseConverter& into);

 private:
  std::map<int, std::unique_ptr<dbc_Converter>> converters_;
};

// Runs the registered steps over rows. Rows of a class stored at version v pass through every
// step from v upward in database-version order until they reach the class's current version.
// A class whose bases have steps of their own holds their parts in its rows: its stored version
// is then a database version, each part (the class itself and every base with steps) is at the
// last of its own layouts not above it, and the steps of all parts that lie above it run in
// database-version order, a base's step before its derived class's step at the same version.
class dbc_UpgradeDriver {
 public:
  // Collects the steps of every registered old class version.
  dbc_UpgradeDriver();
  explicit dbc_UpgradeDriver(const dbc_DatabaseConverter& steps);

  // Upgrades the row in place. Refuses a version newer than current and a version from which no
  // chain of steps reaches current, with a nex_CmdException naming the class and versions.
  void Upgrade(const std::string& className, int storedVersion, int currentVersion, cls_Record& row) const;
  // True when the class has a chain of steps from the stored version to the current one.
  bool HasPath(const std::string& className, int storedVersion, int currentVersion) const;

 private:
  void Load(const dbc_DatabaseConverter& steps);
  // The steps to run, in order, or false when some part has no chain from its stored layout.
  bool Plan(const std::string& className, int stored, int current, std::vector<const dbc_ClassConverter*>& out) const;
  // per class: steps by from-version
  std::map<std::string, std::map<int, const dbc_ClassConverter*>> steps_;
  dbc_DatabaseConverter own_;
};
