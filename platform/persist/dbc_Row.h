#pragma once
// A stored row as converters see it: the fields of a record frozen at one class version,
// addressed by rfm_FieldHandle.
#include <cstdint>
#include <string>

#include "platform/persist/cls_Record.h"

class rfm_FieldHandle {
 public:
  // The number is -1 when the field is addressed by name alone.
  explicit rfm_FieldHandle(const char* name, int number = -1) : name_(name), number_(number) {}
  const std::string& Name() const noexcept { return name_; }
  int Number() const noexcept { return number_; }

 private:
  std::string name_;
  int number_;
};

class dbc_Row {
 public:
  explicit dbc_Row(cls_Record& rec) noexcept : rec_(&rec), const_(&rec) {}
  explicit dbc_Row(const cls_Record& rec) noexcept : const_(&rec) {}

  bool Has(const rfm_FieldHandle& h) const noexcept { return const_->Find(h.Name()) != nullptr; }
  const cls_Value& Get(const rfm_FieldHandle& h) const;
  std::int32_t GetInt(const rfm_FieldHandle& h) const;
  double GetDouble(const rfm_FieldHandle& h) const;
  bool GetBool(const rfm_FieldHandle& h) const;
  cow_String GetString(const rfm_FieldHandle& h) const;

  // Only on a row given as modifiable (the new row of a conversion).
  void Set(const rfm_FieldHandle& h, cls_Value v);
  void SetInt(const rfm_FieldHandle& h, std::int32_t v) { Set(h, v); }
  void SetDouble(const rfm_FieldHandle& h, double v) { Set(h, v); }
  void SetBool(const rfm_FieldHandle& h, bool v) { Set(h, v); }
  void SetString(const rfm_FieldHandle& h, const cow_String& v) { Set(h, v); }
  void Remove(const rfm_FieldHandle& h);

  const cls_Record& Record() const noexcept { return *const_; }

 private:
  cls_Record* rec_ = nullptr;
  const cls_Record* const_;
};
