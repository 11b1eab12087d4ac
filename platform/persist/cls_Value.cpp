#include "platform/persist/cls_Value.h"

#include "platform/persist/cls_Record.h"

const char* cls_AttrTypeName(int type) noexcept {
  switch (type) {
    case cls_AttrInt: return "int";
    case cls_AttrDouble: return "double";
    case cls_AttrString: return "string";
    case cls_AttrBool: return "bool";
    case cls_AttrEnum: return "enumeration";
    case cls_AttrObject: return "object";
    case cls_AttrRegion: return "region";
    case cls_AttrDoubleTable: return "table of doubles";
    case cls_AttrIntList: return "list of ints";
    case cls_AttrDoubleList: return "list of doubles";
    case cls_AttrStringList: return "list of strings";
    case cls_AttrObjectList: return "list of objects";
    case cls_AttrRegionList: return "list of regions";
    case cls_AttrEnumList: return "list of enumerations";
    case cls_AttrBoolList: return "list of bools";
    default: return "unknown";
  }
}

const char* cls_ValueKindName(const cls_Value& v) noexcept {
  static const char* kNames[] = {"null",           "int",          "double",          "bool",
                                 "string",         "list of ints", "list of doubles", "list of strings",
                                 "table of doubles", "object",     "list of objects", "list of bools"};
  return kNames[v.index()];
}

std::string cls_WithArticle(std::string_view noun) {
  bool vowel = !noun.empty() && std::string_view("aeiouAEIOU").find(noun[0]) != std::string_view::npos;
  return (vowel ? "an " : "a ") + std::string(noun);
}

bool cls_ValueEqual(const cls_Value& a, const cls_Value& b) {
  if (a.index() != b.index()) return false;
  if (const auto* ra = std::get_if<cls_RecordPtr>(&a)) {
    const auto& rb = std::get<cls_RecordPtr>(b);
    if (!*ra || !rb) return !*ra && !rb;
    return **ra == *rb;
  }
  if (const auto* la = std::get_if<std::vector<cls_RecordPtr>>(&a)) {
    const auto& lb = std::get<std::vector<cls_RecordPtr>>(b);
    if (la->size() != lb.size()) return false;
    for (std::size_t i = 0; i < la->size(); ++i) {
      const auto& x = (*la)[i];
      const auto& y = lb[i];
      if (!x || !y) {
        if (x || y) return false;
      } else if (!(*x == *y)) {
        return false;
      }
    }
    return true;
  }
  return a == b;
}
