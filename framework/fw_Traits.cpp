#include "framework/fw_Traits.h"

void fw_RefuseKind(const char* field, const cls_Value& v, const char* wanted) {
  nex_ThrowCmd(std::string("The member \"") + field + "\" takes " + wanted + ", not " + cls_WithArticle(cls_ValueKindName(v)));
}
