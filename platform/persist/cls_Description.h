#pragma once
// What a class and its members mean, in words, for the people who read a script beside the
// class reference or ask for help in Python. Each module keeps the texts of its classes in one
// table of its own, registered when the module starts; the class metadata answers from there,
// so the texts live beside the knowledge of the module and not in the mechanical class files.
#include <span>
#include <string_view>

// The meaning of one member, under its scripting name; units and table column layouts are part
// of the text ("(table: time, amplitude)").
struct cls_MemberDescription {
  const char* scriptName;
  const char* text;
};

struct cls_ClassDescription {
  const char* className;  // the registered class name
  const char* summary;    // one line
  std::span<const cls_MemberDescription> members;
  // The registered name of the class whose description answers for the members this one
  // inherits (null when none), so that a base's members are described once.
  const char* base = nullptr;
  // The codes of the module's error table that the class's own validation raises, in the order
  // of its checks (the checks of its member objects are their classes' own).
  std::span<const int> codes = {};
};

// The fixed message of a code of a module's error table; empty for a code outside it.
using cls_ErrorMessageFn = const char* (*)(int code);

// Registers a table of a module under the module's prefix ("kad"); a module may register several
// tables. A table must outlive its registration (a static array).
void cls_RegisterDescriptions(std::string_view module, std::span<const cls_ClassDescription> table,
                              cls_ErrorMessageFn messages = nullptr);
// Forgets every table of the module.
void cls_UnregisterDescriptions(std::string_view module);

// The description of a registered class name; null when no started module describes it.
const cls_ClassDescription* cls_FindDescription(std::string_view className);
// The message of a code that the class's validation raises, from its module's error table;
// empty when the class's module has none or the code is outside it.
const char* cls_FindErrorMessage(std::string_view className, int code);
// The meaning of a member of the class, looked up in the class's description, then in its
// bases', then among the members that mean the same wherever they appear (a data table, its
// temperature and field dependencies, a coordinate system, suppression); empty when the class is
// not described or nothing describes the member.
const char* cls_FindMemberDescription(std::string_view className, std::string_view scriptName);
