#pragma once
// The shortcuts of the ParameterTable family: an element by name inside its container, and the
// container inside a TableCollection, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_ParameterTableCont.h"
#include "ktb/ktbC_TableCollContainerShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_ParameterTableContIMPLSC : public ddr_ShortcutIMPL<ktbC_ParameterTableCont> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTableContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 51); }
};

class ktbC_ParameterTableContShortcut : public ddr_Shortcut<ktbC_ParameterTableContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTableContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 52); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_ParameterTableContShortcut Ctor(const cls_ReadVisitor& r);
};

// The container as a member of its owner, reached through the owner's shortcut.
class ktbC_ParameterTableContInTableCollectionShortcut
    : public ddr_MemberShortcut<ktbC_ParameterTableContInTableCollectionShortcut, ktbC_ParameterTableContIMPLSC, ktbC_TableCollectionShortcut, ktbC_TableCollection::kParameterTablesField> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTableContInTableCollectionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 53); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};

class ktbC_ParameterTableIMPLSC : public ddr_ShortcutIMPL<ktbC_ParameterTable> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTableIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 48); }
};

class ktbC_ParameterTableInParameterTableContShortcut
    : public ddr_SequenceShortcut<ktbC_ParameterTableInParameterTableContShortcut, ktbC_ParameterTableIMPLSC, ktbC_ParameterTableContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTableInParameterTableContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 50); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
};

class ktbC_ParameterTableShortcut : public ddr_Shortcut<ktbC_ParameterTableIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTableShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 49); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_ParameterTableShortcut Ctor(const cls_ReadVisitor& r);
};
