#pragma once
// A named slot that is empty or holds one option of one class. The slot is typed by the class's
// row in the architecture table, not by the C++ class, so that a material or an option declares
// all its slots (and so its stored layout) before every option class exists: a slot whose class
// is not offered yet stays empty and refuses any object, and the class plugs in by registering.
#include <string>

#include "kma/kmaC_MaterialOption.h"

// Refuses an option of another class than the slot's (nex_CmdException).
[[noreturn]] void kmaC_RefuseSlotClass(const char* slot, kmaC_OptionClass expected, unsigned given);

template <kmaC_OptionClass Class>
class kmaC_OptionSlot {
 public:
  static constexpr kmaC_OptionClass kClass = Class;
  static constexpr const char* kClassName = kmaC_OptionClassName(Class);
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(Class); }

  kmaC_OptionSlot() = default;

  bool IsNull() const noexcept { return handle_.IsNull(); }
  const kmaC_MaterialOption* ConstGet() const noexcept { return handle_.IsNull() ? nullptr : &handle_.Get(); }
  // Separates a shared option first; null when empty.
  kmaC_MaterialOption* Get() { return handle_.IsNull() ? nullptr : &handle_.Get(); }
  const kmaC_OptionHandle& Handle() const noexcept { return handle_; }
  // Holds a copy of the option; refuses one of another class and leaves the slot as it was.
  void Set(const kmaC_MaterialOption& option, const char* slotName) { Set(kmaC_OptionHandle(option), slotName); }
  void Set(kmaC_OptionHandle handle, const char* slotName) {
    if (!handle.IsNull() && !handle->IsA(TypeId())) kmaC_RefuseSlotClass(slotName, Class, handle->DynTypeId());
    handle_ = std::move(handle);
  }
  void Clear() { handle_ = kmaC_OptionHandle(); }

  friend bool operator==(const kmaC_OptionSlot& a, const kmaC_OptionSlot& b) { return a.handle_ == b.handle_; }

 private:
  kmaC_OptionHandle handle_;
};
