// Copying a task through its family: the registry clones each registered kind as itself, and a
// kind nobody registered is refused with the module's message.
#include <memory>

#include "kop/kopC_BeadTask.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_TopologyTask.h"
#include "tests/kop/kop_test.h"

namespace {

class kopT_UnregisteredTask final : public kopC_OrimTask {
 public:
  static constexpr unsigned TypeId() { return fw_TypeId(932, 0x7FFF); }
  unsigned ClassTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor&) const override {}
  void AssertValid() const override {}

 protected:
  bool SameAs(const kopC_BaseOptimization&) const override { return true; }
};

TEST(KopTaskCopy, EachKindIsCopiedAsItselfAndAnUnknownKindIsRefused) {
  kop_Start();
  kopC_TopologyTask topology;
  topology.SetNumIterations(12);
  kopC_ShapeTask shape;
  shape.SetTolerance(2.0);
  kopC_SizingTask sizing;
  sizing.SetThicknessMoveLimit(0.5);
  kopC_BeadTask bead;
  bead.SetBeadWidth(3.0);
  for (const kopC_OrimTask* task : std::initializer_list<const kopC_OrimTask*>{&topology, &shape, &sizing, &bead}) {
    SCOPED_TRACE(task->ClassTypeId());
    const std::unique_ptr<kopC_OrimTask> copy(task->Copy());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->ClassTypeId(), task->ClassTypeId());
    EXPECT_TRUE(*copy == *task);
    EXPECT_NE(copy.get(), task);
  }
  kopC_TopologyTask changed = topology;
  const std::unique_ptr<kopC_OrimTask> copy(changed.Copy());
  changed.SetNumIterations(30);
  EXPECT_EQ(static_cast<const kopC_TopologyTask&>(*copy).GetNumIterations(), 12);

  const kopT_UnregisteredTask odd;
  EXPECT_EQ(kop_Failure([&] { delete odd.Copy(); }), "Unable to copy unknown optimization task");
}

}  // namespace
