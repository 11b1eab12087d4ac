#pragma once
/// \file
/// The command layer: a cmd_Session runs the JSON commands of `odbattr run` (create, set, get,
/// list, delete, validate, save, open, undo, redo, transactions) against its own database, one
/// command at a time, each answered with its JSON result. Paths address objects by scripting
/// names, as in a script.
#include "command/cmd_Session.h"
