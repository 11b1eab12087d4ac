#pragma once
// Display labels of the engineering feature kinds, in the order the user interface lists them.
#include <utility>
#include <vector>

class kefC_TypeLabelMap {
 public:
  // The map, built on first use.
  static const kefC_TypeLabelMap& Instance();
  // Releases the map at module stop; the next use builds it again.
  static void Release();

  // The label of the feature class with this type id; empty for a kind without one.
  const char* Label(unsigned typeId) const;
  // (type id, label) in listed order.
  const std::vector<std::pair<unsigned, const char*>>& Entries() const noexcept { return entries_; }

 private:
  kefC_TypeLabelMap();
  std::vector<std::pair<unsigned, const char*>> entries_;
};
