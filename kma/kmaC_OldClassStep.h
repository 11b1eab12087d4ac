#pragma once
// One retired layout of a class of the material module: the step that carries rows stored at
// version From to the next version the class changed at, with the conversion function that fills
// what the old layout lacked (none when only the version rises).
#include "platform/persist/dbc_Converter.h"

template <class Current, int From, int RetiredBy, dbc_ConversionFn Fn>
class kmaC_OldClassStep : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = From;
  static constexpr int kRetiredBy = RetiredBy;
  static constexpr dbc_ConversionFn kFunction = Fn;
  void SchemaChanges(dbc_DatabaseConverter& converter) override {
    dbc_ClassConverter& step = converter.GetConverter(RetiredBy).Upgrade(Current::kClassName, Current::TypeId(), From);
    if constexpr (Fn != nullptr) step.BindConversionFunction(Fn);
  }
};
