#include "kma/kmaC_OptionListOfTraits.h"

#include "platform/persist/cls_ClassRegistrar.h"

void kmaC_RefuseListElement(const char* list, const char* expected, unsigned given) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByTypeId(given);
  const std::string what = md ? "a " + md->Name().str() : "an object of type id " + std::to_string(given);
  nex_ThrowCmd(std::string("The list \"") + list + "\" holds only objects of class " + expected + ", not " + what);
}
