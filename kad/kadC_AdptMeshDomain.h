#pragma once
// An adaptive mesh domain: adaptive meshing applied to a region, with the control it uses and how
// often and how thoroughly to remesh.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kadC_AdptMeshDomain : public fw_PersistentClass<kadC_AdptMeshDomain, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshDomain";
  static constexpr const char* kScriptName = "AdaptiveMeshDomain";
  static constexpr int kVersion = 302;
  static constexpr unsigned TypeId() { return fw_TypeId(616, 2); }

  static constexpr auto Fields() {
    using C = kadC_AdptMeshDomain;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"controls", 1, "controls", &C::controls},
        fw_Field{"frequency", 2, "frequency", &C::frequency},
        fw_Field{"initialRemeshingSweeps", 3, "initialMeshSweeps", &C::initialRemeshingSweeps},
        fw_Field{"sweepsPerIncrement", 4, "meshSweeps", &C::sweepsPerIncrement},
    };
  }

  kadC_AdptMeshDomain() = default;
  explicit kadC_AdptMeshDomain(const cls_ReadVisitor& r);
  virtual ~kadC_AdptMeshDomain() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  const cow_String& GetControls() const { return controls; }
  void SetControls(const cow_String& v) { controls = v; }
  std::int32_t GetFrequency() const { return frequency; }
  void SetFrequency(std::int32_t v) { frequency = v; }
  std::int32_t GetInitialRemeshingSweeps() const { return initialRemeshingSweeps; }
  void SetInitialRemeshingSweeps(std::int32_t v) { initialRemeshingSweeps = v; }
  std::int32_t GetSweepsPerIncrement() const { return sweepsPerIncrement; }
  void SetSweepsPerIncrement(std::int32_t v) { sweepsPerIncrement = v; }

 private:
  rgnC_Region region;
  cow_String controls;  // the name of a control in the control container
  std::int32_t frequency = 10;
  std::int32_t initialRemeshingSweeps = 2147483647;  // no limit
  std::int32_t sweepsPerIncrement = 1;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kadC_AdptMeshDomain, mem_Allocated>;
