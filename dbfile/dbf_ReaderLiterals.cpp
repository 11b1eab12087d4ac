#include "dbfile/dbf_ReaderLiterals.h"

#include <cstring>

#include "dbfile/dbf_ReaderSupport.h"
#include "platform/base/omu_PrimEnum.h"

const omu_EnumLiteral* dbf_LiteralsOf(const cls_ClassMetadata& cls, const std::string& field) {
  for (const cls_ScriptField& f : cls.ScriptFields())
    if (f.type == cls_AttrEnum && f.literals && field == f.persistentName) return f.literals;
  return nullptr;
}

void dbf_CheckLiteral(const dbf_ReadTable& t, std::int64_t oid, const std::string& field,
                      const omu_EnumLiteral* allowed, std::string_view text) {
  for (const omu_EnumLiteral* l = allowed; l->text; ++l)
    if (text == l->text) return;
  // The enumeration's own refusal, after where the text was found.
  const cow_String literal{std::string(text)};
  dbf_DamagedField(t, oid, field,
                   ("the literal \"" + std::string(text) + "\": " +
                    omu_PrimEnumBase::StringRefusalText(allowed, literal).Text())
                       .c_str());
}
