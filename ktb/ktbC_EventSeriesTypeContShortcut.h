#pragma once
// The shortcuts of the EventSeriesType family: an element by name inside its container, and the
// container in the model, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_EventSeriesTypeCont.h"
#include "platform/model/ddr_RepositoryShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_EventSeriesTypeContIMPLSC : public ddr_ShortcutIMPL<ktbC_EventSeriesTypeCont> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 33); }
};

class ktbC_EventSeriesTypeContShortcut : public ddr_Shortcut<ktbC_EventSeriesTypeContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 34); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_EventSeriesTypeContShortcut Ctor(const cls_ReadVisitor& r);
};

class ktbC_EventSeriesTypeContInModelShortcut : public ddr_RepositoryShortcut<ktbC_EventSeriesTypeContInModelShortcut, ktbC_EventSeriesTypeContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeContInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 35); }
};

class ktbC_EventSeriesTypeIMPLSC : public ddr_ShortcutIMPL<ktbC_EventSeriesType> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 30); }
};

class ktbC_EventSeriesTypeInEventSeriesTypeContShortcut
    : public ddr_SequenceShortcut<ktbC_EventSeriesTypeInEventSeriesTypeContShortcut, ktbC_EventSeriesTypeIMPLSC, ktbC_EventSeriesTypeContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeInEventSeriesTypeContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 32); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The element of that name in the model's own container.
  explicit ktbC_EventSeriesTypeInEventSeriesTypeContShortcut(const cow_String& name) : ddr_SequenceShortcut(ktbC_EventSeriesTypeContShortcut(ktbC_EventSeriesTypeContInModelShortcut()), name) {}
};

class ktbC_EventSeriesTypeShortcut : public ddr_Shortcut<ktbC_EventSeriesTypeIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 31); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_EventSeriesTypeShortcut Ctor(const cls_ReadVisitor& r);
};
