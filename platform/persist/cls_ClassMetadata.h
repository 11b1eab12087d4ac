#pragma once
// The description of a persistent class: name, type id, version, attributes in persistent order,
// and the type-erased operations that generic code (database file, command layer, generic tests)
// performs on instances of the class.
#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/persist/cls_FieldHandle.h"
#include "platform/persist/cls_Uid.h"
#include "platform/persist/cls_Value.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassMetadata;
struct cls_ClassDescription;
class mdl_Repository;
struct omu_EnumLiteral;

struct cls_Attribute {
  cls_FieldHandle handle;
  int type;
  int count;
  int collection;
};

// A member offered to the command layer under its scripting name.
struct cls_ScriptField {
  const char* scriptName;
  const char* persistentName;
  int number;
  int type;                          // cls_AttrType
  const omu_EnumLiteral* literals;   // enumerations, and numbers that may hold a literal
  const cls_ClassMetadata* declared; // object members only: the declared class (may be a base)
  bool optional;                     // object members and numbers that may be unspecified: may be null
  cls_Value (*get)(const void* obj);
  // Refuses a value of the wrong kind or an unknown literal with a nex_CmdException and leaves
  // the object unchanged.
  void (*set)(void* obj, const cls_Value& v);
  // Object members: the member object (null when absent); the mutable form separates it first.
  const void* (*child)(const void* obj);
  void* (*mutableChild)(void* obj);
  // Kept by the object itself (a counter of what was added): given only when an object is made,
  // where its own set checks the value; a change of an existing object's member is refused.
  bool readOnly = false;
};

class cls_ClassMetadata {
 public:
  using FactoryFn = void* (*)();
  using DtorFn = void (*)(void*);

  cls_ClassMetadata(const char* name, unsigned typeId, int version, FactoryFn factory, int flag);
  virtual ~cls_ClassMetadata();
  cls_ClassMetadata(const cls_ClassMetadata&) = delete;
  cls_ClassMetadata& operator=(const cls_ClassMetadata&) = delete;

  void AddAttribute(const cls_FieldHandle& handle, int type, int count, int collection);
  void AddDtor(DtorFn dtor) { dtor_ = dtor; }

  const cow_String& Name() const noexcept { return name_; }
  unsigned TypeId() const noexcept { return typeId_; }
  int Version() const noexcept { return version_; }
  int Flag() const noexcept { return flag_; }
  FactoryFn Factory() const noexcept { return factory_; }
  DtorFn Dtor() const noexcept { return dtor_; }
  const std::vector<cls_Attribute>& Attributes() const noexcept { return attributes_; }
  const cls_Attribute* FindAttribute(std::string_view name) const noexcept;

  // The scripting constructor name ("AdaptiveMeshControl"); empty for classes a script does not
  // construct (containers, wrappers).
  virtual const char* ScriptName() const { return ""; }
  // Whether scripts construct this class under that name: its scripting name, or a constructor
  // variant the class offers beside it.
  virtual bool AnswersTo(std::string_view constructor) const { return constructor == ScriptName(); }
  // The constructor variants the class offers beside its scripting name ("DiscreteFieldFromAnalytic"),
  // in the class's order; AnswersTo accepts exactly these and the scripting name.
  virtual std::vector<const char*> ScriptVariants() const { return {}; }
  virtual const std::vector<cls_ScriptField>& ScriptFields() const;
  const cls_ScriptField* FindScriptField(std::string_view scriptName) const noexcept;
  // The class in one line and a member's meaning by scripting name, from the descriptions the
  // class's module registered; empty when none describes them.
  const char* Summary() const;
  // Everything the module says of the class (null when nothing): summary, members, the codes
  // its validation raises.
  const cls_ClassDescription* Description() const;
  const char* MemberDescription(std::string_view scriptName) const;
  // The script fields that hold member objects, found once: walks over many instances skip
  // classes without any.
  const std::vector<const cls_ScriptField*>& ObjectFields() const;
  // The root class of the family whose untyped pointers this metadata hands out.
  virtual const char* RootName() const { return name_.c_str(); }
  // True when this class is the given class or derives from it.
  virtual bool IsA(const cls_ClassMetadata& base) const { return &base == this; }

  // Instances. Each refuses with a nex_CmdException when the class cannot do it.
  virtual bool CanConstruct() const { return false; }
  virtual void* NewDefault() const;
  virtual void* NewFromRecord(const cls_ReadVisitor& r) const;
  virtual void* Clone(const void* obj) const;
  virtual void Write(const void* obj, const cls_WriteVisitor& w) const;
  virtual bool Equal(const void* a, const void* b) const;
  virtual void AssertValid(const void* obj) const;  // nothing to check by default
  virtual cls_Uid UidOf(const void* obj) const;
  // The metadata of an instance's own (most derived) class; this metadata unless overridden.
  virtual const cls_ClassMetadata& ClassOf(const void* obj) const;
  // The instance as a repository (a container of keyed or listed elements), or null when the
  // class is not one; lets the command layer walk into containers nested in objects.
  virtual mdl_Repository* AsRepository(void* obj) const;
  virtual const mdl_Repository* AsRepository(const void* obj) const;
  // Whether instances of the class are repositories (what AsRepository answers, without one).
  virtual bool IsRepositoryClass() const { return false; }
  // Whether the class writes its "keys" and "values" as one keyed collection
  // (cls_WriteVisitor::WriteKeyedObjects), which the database file keeps as rows of their own.
  virtual bool KeepsElementsApart() const { return false; }
  void Destroy(void* obj) const;
  // A step of a path that names no member of obj (an instance of this class): throws the
  // refusal of the class's own shortcuts when they have one ("Unknown material option"), and
  // returns otherwise, leaving the refusal to the caller. Shared by the shortcuts and every
  // generic walk of paths, so that the refusal is the same wherever the path came from.
  virtual void RefuseUnknownStep(const void* obj, std::string_view step) const;

 private:
  cow_String name_;
  unsigned typeId_;
  int version_;
  FactoryFn factory_;
  int flag_;
  DtorFn dtor_ = nullptr;
  std::vector<cls_Attribute> attributes_;
  mutable std::vector<const cls_ScriptField*> objectFields_;
  mutable bool objectFieldsFound_ = false;
};
