#pragma once
// The shortcuts of the PropertyTable family: an element by name inside its container, and the
// container inside a TableCollection, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_PropertyTableCont.h"
#include "ktb/ktbC_TableCollContainerShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_PropertyTableContIMPLSC : public ddr_ShortcutIMPL<ktbC_PropertyTableCont> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 57); }
};

class ktbC_PropertyTableContShortcut : public ddr_Shortcut<ktbC_PropertyTableContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 58); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_PropertyTableContShortcut Ctor(const cls_ReadVisitor& r);
};

// The container as a member of its owner, reached through the owner's shortcut.
class ktbC_PropertyTableContInTableCollectionShortcut
    : public ddr_MemberShortcut<ktbC_PropertyTableContInTableCollectionShortcut, ktbC_PropertyTableContIMPLSC, ktbC_TableCollectionShortcut, ktbC_TableCollection::kPropertyTablesField> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableContInTableCollectionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 59); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};

class ktbC_PropertyTableIMPLSC : public ddr_ShortcutIMPL<ktbC_PropertyTable> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 54); }
};

class ktbC_PropertyTableInPropertyTableContShortcut
    : public ddr_SequenceShortcut<ktbC_PropertyTableInPropertyTableContShortcut, ktbC_PropertyTableIMPLSC, ktbC_PropertyTableContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableInPropertyTableContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 56); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
};

class ktbC_PropertyTableShortcut : public ddr_Shortcut<ktbC_PropertyTableIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTableShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 55); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_PropertyTableShortcut Ctor(const cls_ReadVisitor& r);
};
