#pragma once
// The builder of the command schema, shared by its two sources: the definitions of the classes
// (cmd_Schema.cpp) and the rules that follow a path from the model down (cmd_SchemaPaths.cpp).
// Internal to the command layer.
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "command/cmd_Json.h"

class cls_ClassMetadata;
struct cls_ScriptField;

// The classes that can be constructed where `declared` is expected, in registration order.
std::vector<const cls_ClassMetadata*> cmd_SchemaConstructors(const cls_ClassMetadata& declared);
// The element class of a class whose instances are containers, given inline as an object of
// elements by key; null for any other class.
const cls_ClassMetadata* cmd_SchemaContainerElement(const cls_ClassMetadata& md);

class cmd_SchemaBuilder {
 public:
  cmd_Json Build();

 private:
  using Classes = std::vector<const cls_ClassMetadata*>;

  cmd_Json Op(const char* op, const char* description, std::vector<const char*> required,
              std::vector<std::pair<const char*, cmd_Json>> extra);
  // Definitions of the constructors and their members.
  std::vector<std::string> Names(const cls_ClassMetadata& md);
  void DefineVariant(const cls_ClassMetadata& md, const std::string& variant);
  void Define(const cls_ClassMetadata& md);
  cmd_Json Inline(const cls_ScriptField& f);
  cmd_Json Literals(const cls_ScriptField& f, bool withValues);
  cmd_Json Number(const cls_ScriptField& f);
  cmd_Json Member(const cls_ScriptField& f);

  // Rules on a command's path, from the model down: every step must name what is there, and
  // what a create or set gives at the path must fit what stands there.
  cmd_Json PathRules(const cmd_Json& repositories);
  // The object at path length `depth` is one of `classes`; its members are named at `depth`.
  cmd_Json ObjectNode(const Classes& classes, std::size_t depth);
  // The member named `name` of one of `owners`, at path length `depth` (the member itself).
  cmd_Json MemberNode(const Classes& owners, const std::string& name, std::size_t depth);
  // A create or set of an object of one of `classes` at path length `depth`: "type" names one of
  // them, "values" fit it.
  cmd_Json ObjectRules(const Classes& classes, std::size_t depth);

  cmd_Json defs_;
  std::set<std::string> onStack_;  // object nodes being built: a class that holds itself ends there
};
