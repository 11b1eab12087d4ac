#include "kma/kmaC_OptionSlot.h"

#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_ClassMetadata.h"

void kmaC_RefuseSlotClass(const char* slot, kmaC_OptionClass expected, unsigned given) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByTypeId(given);
  const std::string what = md ? "a " + md->Name().str() : "an object of type id " + std::to_string(given);
  nex_ThrowCmd(std::string("The option slot \"") + slot + "\" holds a " + kmaC_OptionClassName(expected) + ", not " +
               what);
}
