#pragma once
/// \file
/// The database and its models, and the model database file: `dbf_Open(path)` reads a file
/// (upgrading one written by an older version) into a ddr_Database, `dbf_Save(db, path)` writes
/// one atomically (the old file stays whole until the new one is complete). A damaged or foreign
/// file is refused with nex_CmdException and nothing is read.
#include "dbfile/dbf_File.h"
#include "platform/base/nex_Exception.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
