#pragma once
// The implementation side of a shortcut: a path-like reference to one object inside a model
// (a repository of the model, an element of a sequence, a member of an object). Each module's
// <Class>IMPLSC derives from ddr_ShortcutIMPL<Class>; the concrete shortcuts derive from the IMPLSC
// through ddr_RepositoryShortcut, ddr_SequenceShortcut or ddr_MemberShortcut.
#include <string>
#include <vector>

#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "platform/base/cow_String.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class ddr_Model;

class ddr_ShortcutIMPLBase : public mem_Allocated {
 public:
  virtual ~ddr_ShortcutIMPLBase() = default;
  virtual ddr_ShortcutIMPLBase* Copy() const = 0;
  // The concrete shortcut class: its registered name and type id (its row in its module's table).
  virtual const char* ClassName() const = 0;
  virtual unsigned ClassTypeId() const = 0;
  // The last step of the path: a key, a member's scripting name or a repository's scripting name.
  virtual cow_String Name() const = 0;
  // Every step below the model, in the command layer's terms ("adaptiveMeshControls", "C-1").
  virtual std::vector<cow_String> Path() const = 0;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  const cls_Uid& GetUid() const noexcept { return uid_; }

  // Two shortcuts are equal when they are of one class and address the same path; the uid only
  // identifies the stored record.
  bool SameAddress(const ddr_ShortcutIMPLBase& o) const {
    return ClassTypeId() == o.ClassTypeId() && Path() == o.Path();
  }

 protected:
  ddr_ShortcutIMPLBase() = default;
  ddr_ShortcutIMPLBase(const ddr_ShortcutIMPLBase&) = default;
  ddr_ShortcutIMPLBase& operator=(const ddr_ShortcutIMPLBase&) = default;
  void SetUid(const cls_Uid& uid) noexcept { uid_ = uid; }

 private:
  cls_Uid uid_;
};

template <class T>
class ddr_ShortcutIMPL : public ddr_ShortcutIMPLBase {
 public:
  using Addressed = T;
  ddr_ShortcutIMPL* Copy() const override = 0;
  // The addressed object, or null when the path names nothing in this model.
  virtual const T* ConstGet(const ddr_Model& model) const = 0;
  // The addressed object for modification: the repositories on the way separate shared copies
  // and record the change. Refuses a path that names nothing with a nex_CmdException.
  virtual T& Get(ddr_Model& model) const = 0;
};

// Refusals shared by the shortcut templates.
[[noreturn]] void ddr_RefuseShortcutRecord(const char* shortcutClass, unsigned storedTypeId);
[[noreturn]] void ddr_RefuseEmptyShortcut(const char* addressedClass);
[[noreturn]] void ddr_RefuseShortcutPath(const std::vector<cow_String>& path, const std::string& reason);
