#include "kma/kmaC_OptionListMember.h"

#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_ClassRegistrar.h"

void kmaC_RefuseListElement(const char* member, kmaC_OptionClass expected, std::size_t index, unsigned given) {
  std::string what = "an empty element";
  if (given) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByTypeId(given);
    what = md ? "a " + md->Name().str() : "an object of type id " + std::to_string(given);
  }
  nex_ThrowCmd(std::string("The option list \"") + member + "\" holds only " + kmaC_OptionClassName(expected) +
               " objects; element " + std::to_string(index) + " is " + what);
}
