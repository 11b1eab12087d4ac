#pragma once
// A list member of an option whose elements are all of one option class T (the particles of an
// electrode, ...). Scripts and files see the list as a list of objects of class T.
#include <vector>

#include "kma/kmaC_MaterialOptionList.h"

template <class T>
class kmaC_OptionListOf : public kmaC_MaterialOptionList {
 public:
  using Element = T;
  kmaC_OptionListOf() = default;
  explicit kmaC_OptionListOf(std::vector<kmaC_OptionHandle> elements) : kmaC_MaterialOptionList(std::move(elements)) {}
};
