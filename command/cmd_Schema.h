#pragma once
// The JSON Schema (draft 2020-12) of one command of a script, made from what is registered when it
// is called: the ops with their keys, the repositories a model holds with the constructors that can
// make their elements, and for every constructor its members with their JSON types, enumeration
// literals (and integer values) and the defaults of a new object. Nothing in it is written by hand
// per module: a module that registers its classes and its repository appears in it.
#include "command/cmd_Json.h"

cmd_Json cmd_ScriptSchema();
