#pragma once
// The shortcuts of the PropertyTableData family: an element by name inside its container, and the
// container inside a PropertyTable, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_PropertyTableDataCont.h"
#include "ktb/ktbC_PropertyTableContShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_PropertyTableDataContIMPLSC : public ddr_ShortcutIMPL<ktbC_PropertyTableDataCont> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableDataContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 69); }
};

class ktbC_PropertyTableDataContShortcut : public ddr_Shortcut<ktbC_PropertyTableDataContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableDataContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 70); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_PropertyTableDataContShortcut Ctor(const cls_ReadVisitor& r);
};

// The container as a member of its owner, reached through the owner's shortcut.
class ktbC_PropertyTableDataContInPropertyTableShortcut
    : public ddr_MemberShortcut<ktbC_PropertyTableDataContInPropertyTableShortcut, ktbC_PropertyTableDataContIMPLSC, ktbC_PropertyTableShortcut, ktbC_PropertyTable::kDataContainerField> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableDataContInPropertyTableShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 71); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};

class ktbC_PropertyTableDataIMPLSC : public ddr_ShortcutIMPL<ktbC_PropertyTableData> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableDataIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 66); }
};

class ktbC_PropertyTableDataInPropertyTableDataContShortcut
    : public ddr_SequenceShortcut<ktbC_PropertyTableDataInPropertyTableDataContShortcut, ktbC_PropertyTableDataIMPLSC, ktbC_PropertyTableDataContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableDataInPropertyTableDataContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 68); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
};

class ktbC_PropertyTableDataShortcut : public ddr_Shortcut<ktbC_PropertyTableDataIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableDataShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 67); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_PropertyTableDataShortcut Ctor(const cls_ReadVisitor& r);
};
