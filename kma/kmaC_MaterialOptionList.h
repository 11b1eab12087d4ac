#pragma once
// A list of options that an option holds as one member (the test data of a Mullins effect, the
// damage evolutions of a damage initiation, the particles of an electrode).
#include "kma/kmaC_MaterialOption.h"
#include "platform/base/cow_List.h"

class kmaC_MaterialOptionList : public cow_List<kmaC_OptionHandle> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionList";
  using cow_List::cow_List;
  kmaC_MaterialOptionList() = default;
};
