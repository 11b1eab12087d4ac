#pragma once
// Display labels of the constraint kinds, in the order the user interface lists them.
#include <utility>
#include <vector>

class kcoC_ConstraintTypeLabelMap {
 public:
  // The map, built on first use.
  static const kcoC_ConstraintTypeLabelMap& Instance();
  // Releases the map at module stop; the next use builds it again.
  static void Release();

  // The label of the constraint class with this type id ("Tie"); empty for a kind without one.
  const char* Label(unsigned typeId) const;
  // (type id, label) in listed order.
  const std::vector<std::pair<unsigned, const char*>>& Entries() const noexcept { return entries_; }

 private:
  kcoC_ConstraintTypeLabelMap();
  std::vector<std::pair<unsigned, const char*>> entries_;
};
