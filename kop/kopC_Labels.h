#pragma once
// Display labels of the optimization module: the task kinds, and the result identifiers a design
// response or variable reads. Each map is a process-wide singleton built on first Instance() and
// released by Finalize() (the module's stop); the next Instance() builds it again.
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/base/cow_String.h"

// One map from task kind (type id) to translated label, in insertion order.
class kopC_TaskLabelMapBase {
 public:
  // The label of the task class with this type id; empty for a class that is not a task kind.
  cow_String Label(unsigned typeId) const;
  std::size_t Size() const noexcept { return entries_.size(); }
  const std::vector<std::pair<unsigned, cow_String>>& Entries() const noexcept { return entries_; }

 protected:
  explicit kopC_TaskLabelMapBase(const char* const (&labels)[4]);

 private:
  std::vector<std::pair<unsigned, cow_String>> entries_;
};

// "Topology optimization", "Shape optimization", ...
class kopC_TaskTypeLabelMap : public kopC_TaskLabelMapBase {
 public:
  static const kopC_TaskTypeLabelMap& Instance();
  static void Finalize();

 private:
  kopC_TaskTypeLabelMap();
};

// "Topology", "Shape", ...
class kopC_ShortenedTaskTypeLabelMap : public kopC_TaskLabelMapBase {
 public:
  static const kopC_ShortenedTaskTypeLabelMap& Instance();
  static void Finalize();

 private:
  kopC_ShortenedTaskTypeLabelMap();
};

// The result identifiers with their display group and description, in their groups' order.
class kopC_VariableSpecLabelMap {
 public:
  struct Entry {
    const char* identifier;
    const char* group;
    const char* description;
  };
  static const kopC_VariableSpecLabelMap& Instance();
  static void Finalize();
  // The entry of an identifier, or null for a text that is none.
  const Entry* Find(std::string_view identifier) const;
  std::size_t Size() const noexcept { return entries_.size(); }
  const std::vector<Entry>& Entries() const noexcept { return entries_; }

 private:
  kopC_VariableSpecLabelMap();
  std::vector<Entry> entries_;
};

// Identifiers of one value for the whole region (volume, weight, strain energy, center of gravity,
// moments of inertia, energy stiffness): they are summed, never taken at a minimum or maximum.
bool kopC_IsGlobalIdentifier(std::string_view identifier);
// Identifiers that do not depend on a step or load case (volume, weight, center of gravity,
// moments of inertia).
bool kopC_IsStepFreeIdentifier(std::string_view identifier);
// Identifiers read at a layer of a shell section (stresses and strains).
bool kopC_IsLayeredIdentifier(std::string_view identifier);
