#include "kef/kefC_AssembledFastener.h"

#include <algorithm>

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_AssembledFastener::kefC_AssembledFastener(const cls_ReadVisitor& reader) : kefC_Fastener(reader) { fw_ReadFields(*this, reader); }
void kefC_AssembledFastener::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_AssembledFastener* kefC_AssembledFastener::Copy() const { return new kefC_AssembledFastener(*this); }
bool kefC_AssembledFastener::operator==(const kefC_AssembledFastener& o) const { return fw_EqualFields(*this, o); }
bool kefC_AssembledFastener::SameAs(const kefC_Fastener& o) const { return *this == static_cast<const kefC_AssembledFastener&>(o); }
void kefC_AssembledFastener::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_AssembledFastener>(r); }
void kefC_AssembledFastener::CowDtor(void* p) { fw_CowDtor<kefC_AssembledFastener>(p); }

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
