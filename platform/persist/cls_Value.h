#pragma once
// Values of persistent fields as records hold them, and the attribute types of class metadata.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_String.h"

// Attribute types of class metadata. 5, 10, 11, 13, 14 and 15 are the framework's; the others
// are this framework's numbers for regions, lists and tables.
enum cls_AttrType : int {
  cls_AttrInt = 5,
  cls_AttrDouble = 10,
  cls_AttrString = 11,
  cls_AttrBool = 13,
  cls_AttrEnum = 14,
  cls_AttrObject = 15,
  cls_AttrRegion = 16,
  cls_AttrDoubleTable = 17,
  cls_AttrIntList = 18,
  cls_AttrDoubleList = 19,
  cls_AttrStringList = 20,
  cls_AttrObjectList = 21,
  cls_AttrRegionList = 22,
  cls_AttrEnumList = 23,
  cls_AttrBoolList = 24,
};

// Collection types: a single value, a one-dimensional list, a two-dimensional array.
enum cls_CollectionType : int { cls_Single = 0, cls_List1D = 1, cls_Array2D = 2 };

const char* cls_AttrTypeName(int type) noexcept;

struct cls_Record;
using cls_RecordPtr = std::shared_ptr<const cls_Record>;

// One stored value. Enumerations and regions are held as their text.
using cls_Value = std::variant<std::monostate,                // 0: null object
                               std::int32_t,                  // 1
                               double,                        // 2
                               bool,                          // 3
                               cow_String,                    // 4: string, enumeration, region
                               std::vector<std::int32_t>,     // 5
                               std::vector<double>,           // 6
                               std::vector<cow_String>,       // 7
                               cow_2DArray<double>,           // 8
                               cls_RecordPtr,                 // 9: object
                               std::vector<cls_RecordPtr>,    // 10: list of objects
                               std::vector<bool>>;            // 11

// "int", "double", ... for messages.
const char* cls_ValueKindName(const cls_Value& v) noexcept;
// The noun with its indefinite article ("an int", "a double").
std::string cls_WithArticle(std::string_view noun);
bool cls_ValueEqual(const cls_Value& a, const cls_Value& b);
