#pragma once
// The shortcuts of the CompositeColTable family: an element by name inside its container, and the
// container inside a TableCollection, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_CompositeColTableCont.h"
#include "ktb/ktbC_TableCollContainerShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_CompositeColTableContIMPLSC : public ddr_ShortcutIMPL<ktbC_CompositeColTableCont> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTableContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 63); }
};

class ktbC_CompositeColTableContShortcut : public ddr_Shortcut<ktbC_CompositeColTableContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTableContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 64); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_CompositeColTableContShortcut Ctor(const cls_ReadVisitor& r);
};

// The container as a member of its owner, reached through the owner's shortcut.
class ktbC_CompositeColTableContInTableCollectionShortcut
    : public ddr_MemberShortcut<ktbC_CompositeColTableContInTableCollectionShortcut, ktbC_CompositeColTableContIMPLSC, ktbC_TableCollectionShortcut, ktbC_TableCollection::kDataTablesField> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTableContInTableCollectionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 65); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};

class ktbC_CompositeColTableIMPLSC : public ddr_ShortcutIMPL<ktbC_CompositeColTable> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTableIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 60); }
};

class ktbC_CompositeColTableInCompositeColTableContShortcut
    : public ddr_SequenceShortcut<ktbC_CompositeColTableInCompositeColTableContShortcut, ktbC_CompositeColTableIMPLSC, ktbC_CompositeColTableContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTableInCompositeColTableContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 62); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
};

class ktbC_CompositeColTableShortcut : public ddr_Shortcut<ktbC_CompositeColTableIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTableShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 61); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_CompositeColTableShortcut Ctor(const cls_ReadVisitor& r);
};
