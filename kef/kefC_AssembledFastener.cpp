#include "kef/kefC_AssembledFastener.h"

#include <algorithm>

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_AssembledFastener::kefC_AssembledFastener(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

namespace {
// Empty, or nothing but blanks.
bool Blank(const cow_String& s) {
  return std::all_of(s.view().begin(), s.view().end(), [](char c) { return c == ' ' || c == '\t'; });
}
}  // namespace

void kefC_AssembledFastener::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertFastenerValid();
  kefC_Assert(!templateModel.empty(), kefC_NoTemplateModel);
  kefC_Assert(!controlSet.empty(), kefC_NoControlSet);
  kefC_Assert(!propertyPrefix.empty(), kefC_NoPropertyPrefix);
  kefC_Assert(propertyPrefix.view().find('_') == std::string_view::npos, kefC_PrefixHasUnderscore);
  kefC_Assert(templateSurfaces.size() == assignedSurfaces.size(), kefC_SurfaceCountsDiffer);
  kefC_Assert(!templateSurfaces.empty() && !assignedSurfaces.empty(), kefC_NoSurfaces);
  for (const auto* list : {&templateSurfaces, &assignedSurfaces})
    for (const cow_String& s : *list) kefC_Assert(!Blank(s), kefC_BlankSurfaceName);
}

template class fw_PersistentClass<kefC_AssembledFastener, kefC_Fastener>;
