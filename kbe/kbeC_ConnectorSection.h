#pragma once
// A connector section: the ordered list of behavior options that connectors of the section
// carry. Sections are kept by name in the model's repository "connectorSections", so that scripts
// can build behaviors where a model keeps them.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

// The option list of a section: options of any kind, in order, each held copy-on-write and
// copied through its own class.
using kbeC_ConnectorBehaviorOptionHandle =
    cow_COW<kbeC_ConnectorBehaviorOption, cow_Virtual<kbeC_ConnectorBehaviorOption>>;
using kbeC_ConnectorBehaviorOptionList = cow_List<kbeC_ConnectorBehaviorOptionHandle>;

class kbeC_ConnectorSection : public fw_PersistentClass<kbeC_ConnectorSection, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorSection";
  static constexpr const char* kScriptName = "ConnectorSection";
  static constexpr int kVersion = 1125;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 71); }

  static constexpr auto Fields() {
    using C = kbeC_ConnectorSection;
    return std::tuple{
        fw_Field{"behaviorOptions", 0, "behaviorOptions", &C::behaviorOptions},
    };
  }

  kbeC_ConnectorSection() = default;
  explicit kbeC_ConnectorSection(const cls_ReadVisitor& r);
  virtual ~kbeC_ConnectorSection() = default;
  // Validates each option in order; the first failure ends it.
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  const kbeC_ConnectorBehaviorOptionList& GetBehaviorOptions() const { return behaviorOptions; }
  void SetBehaviorOptions(const kbeC_ConnectorBehaviorOptionList& v) { behaviorOptions = v; }
  // Appends a copy of an option of any kind.
  void AppendBehaviorOption(const kbeC_ConnectorBehaviorOption& option);
  // The whole list, for modification (a host reorders or extends it through its shortcut).
  kbeC_ConnectorBehaviorOptionList& ModifyBehaviorOptions() { return behaviorOptions; }
  // The option at a position, for modification (separated from other copies first).
  kbeC_ConnectorBehaviorOption& ModifyBehaviorOption(std::size_t index);

 private:
  kbeC_ConnectorBehaviorOptionList behaviorOptions;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_ConnectorSection, mem_Allocated>;
