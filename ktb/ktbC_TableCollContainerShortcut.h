#pragma once
// The shortcuts of the TableCollection family: an element by name inside its container, and the
// container in the model, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_TableCollContainer.h"
#include "platform/model/ddr_RepositoryShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_TableCollContainerIMPLSC : public ddr_ShortcutIMPL<ktbC_TableCollContainer> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 27); }
};

class ktbC_TableCollContainerShortcut : public ddr_Shortcut<ktbC_TableCollContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 28); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_TableCollContainerShortcut Ctor(const cls_ReadVisitor& r);
};

class ktbC_TableCollContainerInModelShortcut : public ddr_RepositoryShortcut<ktbC_TableCollContainerInModelShortcut, ktbC_TableCollContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 29); }
};

class ktbC_TableCollectionIMPLSC : public ddr_ShortcutIMPL<ktbC_TableCollection> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollectionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 24); }
};

class ktbC_TableCollectionInTableCollContainerShortcut
    : public ddr_SequenceShortcut<ktbC_TableCollectionInTableCollContainerShortcut, ktbC_TableCollectionIMPLSC, ktbC_TableCollContainerShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollectionInTableCollContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 26); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The element of that name in the model's own container.
  explicit ktbC_TableCollectionInTableCollContainerShortcut(const cow_String& name) : ddr_SequenceShortcut(ktbC_TableCollContainerShortcut(ktbC_TableCollContainerInModelShortcut()), name) {}
};

class ktbC_TableCollectionShortcut : public ddr_Shortcut<ktbC_TableCollectionIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollectionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 25); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_TableCollectionShortcut Ctor(const cls_ReadVisitor& r);
};
