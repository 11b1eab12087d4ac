#include "platform/base/omu_PrimEnum.h"

#include <cstring>

#include "platform/base/nex_Exception.h"

namespace {
constexpr const char* kSource = "QMXAbuTessarUtilities/ProtectedInterfaces/omu_PrimEnum";
}

int omu_PrimEnumBase::FindText(const char* text) const noexcept {
  if (!text) return -1;
  for (int i = 0; table_[i].text; ++i)
    if (std::strcmp(table_[i].text, text) == 0) return i;
  return -1;
}

int omu_PrimEnumBase::FindText(std::string_view text) const noexcept {
  for (int i = 0; table_[i].text; ++i)
    if (std::string_view(table_[i].text) == text) return i;
  return -1;
}

int omu_PrimEnumBase::FindValue(std::int64_t value) const noexcept {
  for (int i = 0; table_[i].text; ++i)
    if (table_[i].value == value) return i;
  return -1;
}

cow_Map<cow_String, unsigned> omu_PrimEnumBase::PermissibleValues() const {
  cow_Map<cow_String, unsigned> m;
  for (int i = 0; table_[i].text; ++i) m.Insert(table_[i].text, static_cast<unsigned>(table_[i].value));
  return m;
}

namespace {
cow_String omu_PermissibleOf(const omu_EnumLiteral* table) {
  std::string s;
  for (int i = 0; table[i].text; ++i) {
    if (i) s += ", ";
    s += table[i].text;
  }
  return cow_String(s);
}
}  // namespace

cow_String omu_PrimEnumBase::PermissibleValuesAsString() const { return omu_PermissibleOf(table_); }

void omu_PrimEnumBase::RefuseValue(std::int64_t value) const {
  atr_SubstituteFormat f(atr_translate(
      "omu_PrimEnum(ENUMTYPE) - Enum value not allowed: %d  Permissible: %s"));
  f.Substitute(1, static_cast<long long>(static_cast<std::int32_t>(value)));
  f.Substitute(2, PermissibleValuesAsString());
  nex_CmdError(f.Result()).Throw(kSource, 76);
}

atr_String omu_PrimEnumBase::StringRefusalText(const omu_EnumLiteral* table, const cow_String& s) {
  atr_SubstituteFormat f(atr_translate(
      "omu_PrimEnum(const cow_String&) - str not allowed: %s  Permissible: %s"));
  f.Substitute(1, s);
  f.Substitute(2, omu_PermissibleOf(table));
  return f.Result();
}

void omu_PrimEnumBase::RefuseString(const cow_String& s) const {
  nex_CmdError(StringRefusalText(table_, s)).Throw(kSource, 103);
}

void omu_PrimEnumBase::RefuseStored(const cow_String& s) const {
  atr_SubstituteFormat f(atr_translate(
      "omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: %s  Permissible: %s"));
  f.Substitute(1, s);
  f.Substitute(2, PermissibleValuesAsString());
  nex_CmdError(f.Result()).Throw(kSource, 117);
}

void omu_PrimEnumBase::RefuseOther(const cow_String& s) const {
  // The line of this refusal is the framework's own; 131 follows the other three in the source.
  atr_SubstituteFormat f(atr_translate("omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: %s"));
  f.Substitute(1, s);
  nex_CmdError(f.Result()).Throw(kSource, 131);
}
