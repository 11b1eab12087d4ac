#pragma once
// A display body as stored by name: the instance and the three control nodes by label and instance
// name.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/base/cow_String.h"

class kcoC_DdbDisplayBody : public fw_PersistentClass<kcoC_DdbDisplayBody, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_DdbDisplayBody";
  static constexpr const char* kScriptName = "DdbDisplayBody";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 11); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_DdbDisplayBody;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"instanceName", 1, "instanceName", &C::instanceName},
        fw_Field{"node1Label", 2, "node1Label", &C::node1Label},
        fw_Field{"node1InstanceName", 3, "node1InstanceName", &C::node1InstanceName},
        fw_Field{"node2Label", 4, "node2Label", &C::node2Label},
        fw_Field{"node2InstanceName", 5, "node2InstanceName", &C::node2InstanceName},
        fw_Field{"node3Label", 6, "node3Label", &C::node3Label},
        fw_Field{"node3InstanceName", 7, "node3InstanceName", &C::node3InstanceName},
    };
  }

  kcoC_DdbDisplayBody() = default;
  explicit kcoC_DdbDisplayBody(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetInstanceName() const { return instanceName; }
  void SetInstanceName(const cow_String& v) { instanceName = v; }
  std::int32_t GetNode1Label() const { return node1Label; }
  void SetNode1Label(std::int32_t v) { node1Label = v; }
  const cow_String& GetNode1InstanceName() const { return node1InstanceName; }
  void SetNode1InstanceName(const cow_String& v) { node1InstanceName = v; }
  std::int32_t GetNode2Label() const { return node2Label; }
  void SetNode2Label(std::int32_t v) { node2Label = v; }
  const cow_String& GetNode2InstanceName() const { return node2InstanceName; }
  void SetNode2InstanceName(const cow_String& v) { node2InstanceName = v; }
  std::int32_t GetNode3Label() const { return node3Label; }
  void SetNode3Label(std::int32_t v) { node3Label = v; }
  const cow_String& GetNode3InstanceName() const { return node3InstanceName; }
  void SetNode3InstanceName(const cow_String& v) { node3InstanceName = v; }

 private:
  cow_String instanceName;
  std::int32_t node1Label = 0;
  cow_String node1InstanceName;
  std::int32_t node2Label = 0;
  cow_String node2InstanceName;
  std::int32_t node3Label = 0;
  cow_String node3InstanceName;
};

extern template class fw_PersistentClass<kcoC_DdbDisplayBody, kcoC_Constraint>;
