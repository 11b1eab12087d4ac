#pragma once
// The shortcuts of the ElemProgressiveActivation family: an element by name inside its container, and the
// container in the model, each with its implementation base.
#include "framework/fw_Field.h"
#include "ktb/ktbC_ElemProgActivationCont.h"
#include "platform/model/ddr_RepositoryShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class ktbC_ElemProgActivationContIMPLSC : public ddr_ShortcutIMPL<ktbC_ElemProgActivationCont> {
 public:
  static constexpr const char* kClassName = "ktbC_ElemProgActivationContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 45); }
};

class ktbC_ElemProgActivationContShortcut : public ddr_Shortcut<ktbC_ElemProgActivationContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_ElemProgActivationContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 46); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_ElemProgActivationContShortcut Ctor(const cls_ReadVisitor& r);
};

class ktbC_ElemProgActivationContInModelShortcut : public ddr_RepositoryShortcut<ktbC_ElemProgActivationContInModelShortcut, ktbC_ElemProgActivationContIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_ElemProgActivationContInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 47); }
};

class ktbC_ElemProgressiveActivationIMPLSC : public ddr_ShortcutIMPL<ktbC_ElemProgressiveActivation> {
 public:
  static constexpr const char* kClassName = "ktbC_ElemProgressiveActivationIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 42); }
};

class ktbC_ElemProgressiveActivationInElemProgActivationContShortcut
    : public ddr_SequenceShortcut<ktbC_ElemProgressiveActivationInElemProgActivationContShortcut, ktbC_ElemProgressiveActivationIMPLSC, ktbC_ElemProgActivationContShortcut> {
 public:
  static constexpr const char* kClassName = "ktbC_ElemProgressiveActivationInElemProgActivationContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 44); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The element of that name in the model's own container.
  explicit ktbC_ElemProgressiveActivationInElemProgActivationContShortcut(const cow_String& name) : ddr_SequenceShortcut(ktbC_ElemProgActivationContShortcut(ktbC_ElemProgActivationContInModelShortcut()), name) {}
};

class ktbC_ElemProgressiveActivationShortcut : public ddr_Shortcut<ktbC_ElemProgressiveActivationIMPLSC> {
 public:
  static constexpr const char* kClassName = "ktbC_ElemProgressiveActivationShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(772, 43); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static ktbC_ElemProgressiveActivationShortcut Ctor(const cls_ReadVisitor& r);
};
