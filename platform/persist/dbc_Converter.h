#pragma once
// Old class versions and the database converter: each retired layout of a class declares, in
// SchemaChanges, the step that carries its rows to the next database version, and binds the
// conversion function that does it. The upgrade driver runs those steps over stored rows before
// any class reads them.
#include <map>
#include <memory>
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

// Rows of a class that a later version renamed: rows of `oldName` stored at `fromVersion` become
// rows of `newName` at the converter's target version, built by the bound function from the old
// row and the rows it rests on (dbc_Row::Source). Rows of a part class (a retired base class or
// a retired class whose rows only ever belonged to other rows) are read only by such functions.
class dbc_ClassRename {
 public:
  dbc_ClassRename(std::string oldName, int fromVersion, std::string newName, unsigned newTypeId, int target)
      : oldName_(std::move(oldName)), newName_(std::move(newName)), newTypeId_(newTypeId), from_(fromVersion),
        target_(target) {}
  void BindConversionFunction(dbc_ConversionFn fn, int arg = 0) {
    fn_ = fn;
    arg_ = arg;
  }
  const std::string& OldName() const noexcept { return oldName_; }
  const std::string& NewName() const noexcept { return newName_; }  // empty for a part class
  unsigned NewTypeId() const noexcept { return newTypeId_; }
  int From() const noexcept { return from_; }
  int Target() const noexcept { return target_; }
  bool IsPart() const noexcept { return newName_.empty(); }
  dbc_ConversionFn Function() const noexcept { return fn_; }
  int Arg() const noexcept { return arg_; }

 private:
  std::string oldName_;
  std::string newName_;
  unsigned newTypeId_;
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
  // Declares that rows of oldName stored at fromVersion become rows of newName at this target.
  dbc_ClassRename& Rename(const char* oldName, int fromVersion, const char* newName, unsigned newTypeId);
  // Declares a class whose rows stored at fromVersion are read only as parts of renamed rows.
  void Part(const char* oldName, int fromVersion);
  const std::vector<std::unique_ptr<dbc_ClassRename>>& Renames() const noexcept { return renames_; }

 private:
  int target_;
  std::vector<std::unique_ptr<dbc_ClassConverter>> steps_;
  std::vector<std::unique_ptr<dbc_ClassRename>> renames_;
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
  // The driver of every registered old class version, made again only once more versions have
  // registered since the last one: opening a file then costs no collection of its own.
  static std::shared_ptr<const dbc_UpgradeDriver> Registered();

  // Upgrades the row in place. Refuses a version newer than current and a version from which no
  // chain of steps reaches current, with a nex_CmdException naming the class and versions.
  void Upgrade(const std::string& className, int storedVersion, int currentVersion, cls_Record& row) const;
  // The same in two halves, for a reader that upgrades many rows of one class: the steps, found
  // once (refused as Upgrade refuses), then run over each row.
  using Steps = std::vector<const dbc_ClassConverter*>;
  Steps StepsFor(const std::string& className, int storedVersion, int currentVersion) const;
  // Each step builds the new row in `scratch`, the caller's: a reader that upgrades row after row
  // keeps it, so that the rows need no allocation of their own once it has grown.
  static void Run(const Steps& steps, cls_Record& row, cls_Record& scratch);
  // True when the class has a chain of steps from the stored version to the current one.
  bool HasPath(const std::string& className, int storedVersion, int currentVersion) const;
  // The rename (or part declaration) of a class no longer registered, stored at a version; null
  // when there is none.
  const dbc_ClassRename* RenameOf(const std::string& oldName, int storedVersion) const;

 private:
  void Load(const dbc_DatabaseConverter& steps);
  // The steps to run, in order, or false when some part has no chain from its stored layout.
  bool Plan(const std::string& className, int stored, int current, std::vector<const dbc_ClassConverter*>& out) const;
  // per class: steps by from-version
  std::map<std::string, std::map<int, const dbc_ClassConverter*>> steps_;
  std::map<std::pair<std::string, int>, const dbc_ClassRename*> renames_;
  dbc_DatabaseConverter own_;
};
