#include "platform/persist/cls_Visitor.h"

// A visitor that stores whole records writes a keyed collection as its two lists.
void cls_WriteVisitor::WriteKeyedObjects(const char* keysName, const char* valuesName,
                                         const cls_KeyedObjects& objs) const {
  std::vector<const void*> values;
  values.reserve(objs.Size());
  if (objs.IntegerKeys()) {
    std::vector<std::int32_t> keys;
    keys.reserve(objs.Size());
    objs.ForEach([&](const cls_ElementKey& k, const void* obj) {
      keys.push_back(k.integer);
      values.push_back(obj);
    });
    WriteIntList(keysName, keys);
  } else {
    std::vector<cow_String> keys;
    keys.reserve(objs.Size());
    objs.ForEach([&](const cls_ElementKey& k, const void* obj) {
      keys.push_back(*k.text);
      values.push_back(obj);
    });
    WriteStringList(keysName, keys);
  }
  WriteObjectList(valuesName, values, objs.WriteFn());
}
