#pragma once
// A persistent field's identity: its number within the class and its persistent name.
#include "platform/base/cow_String.h"

class cls_FieldHandle {
 public:
  cls_FieldHandle(int number, const char* name) : number_(number), name_(name) {}
  int Number() const noexcept { return number_; }
  const cow_String& Name() const noexcept { return name_; }

 private:
  int number_;
  cow_String name_;
};
