#include "framework/fw_Traits.h"

void fw_RefuseKind(const char* field, const cls_Value& v, const char* wanted) {
  nex_ThrowCmd(std::string("The member \"") + field + "\" takes " + wanted + ", not a " + cls_ValueKindName(v));
}
