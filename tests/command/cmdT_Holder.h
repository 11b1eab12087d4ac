#pragma once
// Test-only classes that give the command layer and the shortcuts what the modules do not have
// yet: an object holding a nested container, an optional member object, a list of objects and
// plain lists; a container of them; an integer-keyed repository and a positional list, all
// registered as model extensions ("holders", "numberedControls", "domainList").
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshDomCont.h"
#include "kad/kadC_AdptMeshDomContIMPLSC.h"
#include "kad/kadC_AdptMeshDomContShortcut.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/model/ddr_MemberShortcut.h"
#include "platform/model/ddr_RepositoryShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/mdl_1DArrayList.h"
#include "platform/model/mdl_MapOfCowsRepository.h"
#include "platform/model/mdl_MapString2ObjCow.h"

constexpr unsigned kCmdTestKey = 999;

class cmdT_Holder : public mem_Allocated {
 public:
  using ControlHandle = cow_COW<kadC_AdptMeshCtrl, cow_Virtual<kadC_AdptMeshCtrl>>;
  static constexpr const char* kClassName = "cmdT_Holder";
  static constexpr const char* kScriptName = "Holder";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 1); }
  static constexpr int kDomainsField = 1;

  static constexpr auto Fields() {
    using C = cmdT_Holder;
    return std::tuple{
        fw_Field{"label", 0, "label", &C::label},
        fw_Field{"domains", kDomainsField, "domains", &C::domains},
        fw_Field{"control", 2, "control", &C::control},
        fw_Field{"controls", 3, "controlList", &C::controls},
        fw_Field{"weights", 4, "weights", &C::weights},
        fw_Field{"table", 5, "table", &C::table},
        fw_Field{"counts", 6, "counts", &C::counts},
        fw_Field{"flags", 7, "flags", &C::flags},
        fw_Field{"names", 8, "names", &C::names},
        fw_Field{"modes", 9, "modes", &C::modes},
        fw_Field{"enabled", 10, "enabled", &C::enabled},
        fw_Field{"count", 11, "count", &C::count},
    };
  }

  cmdT_Holder() = default;
  explicit cmdT_Holder(const cls_ReadVisitor& r);
  void DBWrite(const cls_WriteVisitor& w) const;
  virtual ~cmdT_Holder() = default;
  virtual cmdT_Holder* Copy() const;
  // Refuses a negative count, so that validation failures of nested objects can be seen.
  virtual void AssertValid() const;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const cmdT_Holder& o) const;
  const cls_Uid& GetUid() const { return uid; }

  kadC_AdptMeshDomCont& Domains() { return domains; }
  const kadC_AdptMeshDomCont& Domains() const { return domains; }
  const ControlHandle& Control() const { return control; }
  const cow_List<ControlHandle>& Controls() const { return controls; }
  const cow_2DArray<double>& Table() const { return table; }

 private:
  cow_String label;
  kadC_AdptMeshDomCont domains;
  ControlHandle control;
  cow_List<ControlHandle> controls;
  cow_List<double> weights;
  cow_2DArray<double> table;
  cow_List<std::int32_t> counts;
  cow_List<bool> flags;
  cow_List<cow_String> names;
  cow_List<kadC_AdptMeshCtrl::SmoothingPriorityEnm> modes;
  bool enabled = false;
  std::int32_t count = 0;
  cls_Uid uid;
};

template <>
struct mdl_MapTraits<cmdT_Holder> {
  static constexpr const char* kClassName = "cmdT_HolderCont";
  static constexpr const char* kRepositoryName = "holders";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 2); }
};
using cmdT_HolderCont = mdl_MapString2ObjCow<cmdT_Holder>;

template <>
struct mdl_MapOfCowsTraits<kadC_AdptMeshCtrl> {
  static constexpr const char* kClassName = "cmdT_NumberedControls";
  static constexpr const char* kRepositoryName = "numberedControls";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 3); }
};
using cmdT_NumberedControls = mdl_MapOfCowsRepository<kadC_AdptMeshCtrl>;

template <>
struct mdl_1DArrayListTraits<kadC_AdptMeshDomain> {
  static constexpr const char* kClassName = "cmdT_DomainList";
  static constexpr const char* kRepositoryName = "domainList";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 4); }
};
using cmdT_DomainList = mdl_1DArrayList<kadC_AdptMeshDomain>;

// Containers as the elements of a repository ("domainGroups"), the way an object that holds
// several named containers offers them.
template <>
struct mdl_MapTraits<kadC_AdptMeshDomCont> {
  static constexpr const char* kClassName = "cmdT_DomainGroups";
  static constexpr const char* kRepositoryName = "domainGroups";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 8); }
};
using cmdT_DomainGroups = mdl_MapString2ObjCow<kadC_AdptMeshDomCont>;

// --- shortcuts through the holder: a member shortcut places a kad domain container ------------

class cmdT_HolderContIMPLSC : public ddr_ShortcutIMPL<cmdT_HolderCont> {
 public:
  static constexpr const char* kClassName = "cmdT_HolderContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 10); }
};
class cmdT_HolderContInModelShortcut : public ddr_RepositoryShortcut<cmdT_HolderContInModelShortcut, cmdT_HolderContIMPLSC> {
 public:
  static constexpr const char* kClassName = "cmdT_HolderContInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 11); }
};
class cmdT_HolderContShortcut : public ddr_Shortcut<cmdT_HolderContIMPLSC> {
 public:
  static constexpr const char* kClassName = "cmdT_HolderContShortcut";
  using ddr_Shortcut::ddr_Shortcut;
  static cmdT_HolderContShortcut Ctor(const cls_ReadVisitor& r);
};
class cmdT_HolderIMPLSC : public ddr_ShortcutIMPL<cmdT_Holder> {};
class cmdT_HolderInHolderContShortcut
    : public ddr_SequenceShortcut<cmdT_HolderInHolderContShortcut, cmdT_HolderIMPLSC, cmdT_HolderContShortcut> {
 public:
  static constexpr const char* kClassName = "cmdT_HolderInHolderContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 12); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
};
class cmdT_HolderShortcut : public ddr_Shortcut<cmdT_HolderIMPLSC> {
 public:
  static constexpr const char* kClassName = "cmdT_HolderShortcut";
  using ddr_Shortcut::ddr_Shortcut;
  static cmdT_HolderShortcut Ctor(const cls_ReadVisitor& r);
};
class cmdT_DomContInHolderShortcut
    : public ddr_MemberShortcut<cmdT_DomContInHolderShortcut, kadC_AdptMeshDomContIMPLSC, cmdT_HolderShortcut,
                                cmdT_Holder::kDomainsField> {
 public:
  static constexpr const char* kClassName = "cmdT_DomContInHolderShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 13); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
class cmdT_ControlIMPLSC : public ddr_ShortcutIMPL<kadC_AdptMeshCtrl> {};
class cmdT_ControlInHolderShortcut
    : public ddr_MemberShortcut<cmdT_ControlInHolderShortcut, cmdT_ControlIMPLSC, cmdT_HolderShortcut, 2> {
 public:
  static constexpr const char* kClassName = "cmdT_ControlInHolderShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 14); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};

// Registers the test classes and extensions once per test program (after the library started).
void cmdT_Register();
// As the first member of a fixture: registers before the fixture's models are made.
struct cmdT_Registered {
  cmdT_Registered() { cmdT_Register(); }
};
