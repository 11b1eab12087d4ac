#include "kop/kopC_ShapeTask.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapeTask::kopC_ShapeTask(const cls_ReadVisitor& reader) : kopC_OrimTask(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapeTask::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kopC_ShapeTask::operator==(const kopC_ShapeTask& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapeTask::SameAs(const kopC_BaseOptimization& o) const { return *this == static_cast<const kopC_ShapeTask&>(o); }
void kopC_ShapeTask::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapeTask>(r); }
void kopC_ShapeTask::CowDtor(void* p) { fw_CowDtor<kopC_ShapeTask>(p); }

void kopC_ShapeTask::AssertValid() const {
  if (GetSuppressed()) return;
  if (IsGeneral()) {
    if (meshSmoothingStrategy != SmoothingStrategyEnm::NONE) {
      if (static_cast<int>(meshSmoothingStrategy) == 2)
        kopC_Assert(numSmoothedElementLayers > 0, kopC_SmoothedLayersNotPositive);
      kopC_Assert(numFreeNodeLayers >= 0, kopC_FreeNodeLayersNegative);
      if (static_cast<int>(nodeLayersApproach) == 1)
        kopC_Assert(featureRecognitionAngle >= 0, kopC_FeatureAngleNegative);
      kopC_Assert(triMinAngle >= 0 && triMinAngle <= 59, kopC_TriMinAngleOutOfRange);
      kopC_Assert(triMaxAngle >= 61 && triMaxAngle <= 180, kopC_TriMaxAngleOutOfRange);
      // The two quad limits report the messages users have always seen, misnamed as they are.
      kopC_Assert(quadMinAngle >= 0 && quadMinAngle <= 89, kopC_QuadMinAngleOutOfRange);
      kopC_Assert(quadMaxAngle >= 91 && quadMaxAngle <= 180, kopC_QuadMaxAngleOutOfRange);
      kopC_Assert(quadTaper >= 0, kopC_QuadTaperNegative);
      kopC_Assert(quadSkew >= 0, kopC_QuadSkewNegative);
      kopC_Assert(tetMinAspect >= 0.00177 && tetMinAspect <= 1.3, kopC_TetMinAspectOutOfRange);
      kopC_Assert(tetMaxAspect >= 1.36 && tetMaxAspect <= 999, kopC_TetMaxAspectOutOfRange);
      kopC_Assert(tetAspectRatio >= 0, kopC_TetAspectRatioNegative);
      kopC_Assert(tetSkew >= 0, kopC_TetSkewNegative);
      kopC_Assert(!haltUponViolation || reportQualityViolation, kopC_HaltWithoutReport);
      // The region smoothed: one given by name, or layers counted from a reference region.
      if (meshSmoothingRegionMethod == SmoothingRegionMethodEnm::REGION)
        kopC_Assert(!smoothingRegion.IsEmpty(), kopC_SmoothingRegionMissing);
      if (meshSmoothingRegionMethod == SmoothingRegionMethodEnm::NUMBER_OF_LAYERS)
        kopC_Assert(!layerReferenceRegion.IsEmpty(), kopC_SmoothingLayerRegionMissing);
    }
  } else {
    kopC_Assert(curvatureSmoothingEdgeLength >= 0, kopC_CurvatureSmoothingNegative);
    kopC_Assert(tolerance >= 0, kopC_ToleranceNegative);
  }
  AssertValidTask();
}
