#pragma once
// The shortcuts of the EventSeries family: an element by name inside its container, and the
// container in the model, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_EventSeriesCont.h"
#include "platform/model/ddr_RepositoryShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_EventSeriesContIMPLSC : public ddr_ShortcutIMPL<ktbC_EventSeriesCont> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 39); }
};

class ktbC_EventSeriesContShortcut : public ddr_Shortcut<ktbC_EventSeriesContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 40); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_EventSeriesContShortcut Ctor(const cls_ReadVisitor& r);
};

class ktbC_EventSeriesContInModelShortcut : public ddr_RepositoryShortcut<ktbC_EventSeriesContInModelShortcut, ktbC_EventSeriesContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesContInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 41); }
};

class ktbC_EventSeriesIMPLSC : public ddr_ShortcutIMPL<ktbC_EventSeries> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 36); }
};

class ktbC_EventSeriesInEventSeriesContShortcut
    : public ddr_SequenceShortcut<ktbC_EventSeriesInEventSeriesContShortcut, ktbC_EventSeriesIMPLSC, ktbC_EventSeriesContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesInEventSeriesContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 38); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The element of that name in the model's own container.
  explicit ktbC_EventSeriesInEventSeriesContShortcut(const cow_String& name) : ddr_SequenceShortcut(ktbC_EventSeriesContShortcut(ktbC_EventSeriesContInModelShortcut()), name) {}
};

class ktbC_EventSeriesShortcut : public ddr_Shortcut<ktbC_EventSeriesIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 37); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_EventSeriesShortcut Ctor(const cls_ReadVisitor& r);
};
