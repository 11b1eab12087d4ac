#pragma once
// One retired layout of a class of the material module: the step that carries rows stored at
// version From to the next version the class changed at. kmaC_OldClassStep only raises the
// version; kmaC_OldClassConversion also binds the function that fills what the old layout lacked.
#include "platform/persist/dbc_Converter.h"

template <class Current, int From, int RetiredBy>
class kmaC_OldClassStep : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = From;
  static constexpr int kRetiredBy = RetiredBy;
  void SchemaChanges(dbc_DatabaseConverter& converter) override { Declare(converter); }

 protected:
  static dbc_ClassConverter& Declare(dbc_DatabaseConverter& converter) {
    return converter.GetConverter(RetiredBy).Upgrade(Current::kClassName, Current::TypeId(), From);
  }
};

template <class Current, int From, int RetiredBy, dbc_ConversionFn Fn>
class kmaC_OldClassConversion : public kmaC_OldClassStep<Current, From, RetiredBy> {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override {
    kmaC_OldClassStep<Current, From, RetiredBy>::Declare(converter).BindConversionFunction(Fn);
  }
};
