#pragma once
// A point-based fastener: fasteners at the points of a region, joining the target surfaces found
// within the search radius. Whether the target surface is edge-based and whether an MPC section is
// of beam type is judged against the model (codes 17 and 41) by kefC_AssertInModel.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Fastener.h"
#include "framework/fw_OrLiteral.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kefC_PointFastener : public fw_PersistentClass<kefC_PointFastener, kefC_Fastener> {
 public:
  using BaseClass = kefC_Fastener;
  using RootClass = kefC_Fastener;
  static constexpr const char* kClassName = "kefC_PointFastener";
  static constexpr const char* kScriptName = "PointFastener";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 8); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_PointFastener;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"csys", 2, "csys", &C::csys},
        fw_Field{"ur1", 3, "ur1", &C::ur1},
        fw_Field{"ur2", 4, "ur2", &C::ur2},
        fw_Field{"ur3", 5, "ur3", &C::ur3},
        fw_Field{"influenceRadius", 6, "influenceRadius", &C::influenceRadius},
        fw_Field{"weightingMethod", 7, "weightingMethod", &C::weightingMethod},
        fw_Field{"coupling", 8, "coupling", &C::coupling},
        fw_Field{"rotCoupling", 9, "rotationalCoupling", &C::rotCoupling},
        fw_Field{"targetSurface", 10, "targetSurface", &C::targetSurface},
        fw_Field{"targetSurfaces", 11, "targetSurfaces", &C::targetSurfaces},
        fw_Field{"directionVector", 12, "directionVector", &C::directionVector},
        fw_Field{"searchRadius", 13, "searchRadius", &C::searchRadius},
        fw_Field{"maximumLayers", 14, "maximumLayers", &C::maximumLayers},
        fw_Field{"adjustOrientation", 15, "adjustOrientation", &C::adjustOrientation},
        fw_Field{"unsorted", 16, "unsorted", &C::unsorted},
        fw_Field{"physicalRadius", 17, "physicalRadius", &C::physicalRadius},
        fw_Field{"additionalMass", 18, "additionalMass", &C::additionalMass},
        fw_Field{"connectionType", 19, "connectionType", &C::connectionType},
        fw_Field{"attachmentMethod", 20, "attachmentMethod", &C::attachmentMethod},
        fw_Field{"sectionName", 21, "sectionName", &C::sectionName},
        fw_Field{"connectorOrientationLocalCsys1", 22, "connectorOrientationLocalCsys1", &C::connectorOrientationLocalCsys1},
        fw_Field{"connectorOrientationLocalCsys2", 23, "connectorOrientationLocalCsys2", &C::connectorOrientationLocalCsys2},
        fw_Field{"connectorOrientation2sameAs1", 24, "connectorOrientationOrient2sameAs1", &C::connectorOrientation2sameAs1},
        fw_Field{"connectorOrientationAngle1", 25, "connectorOrientationAngle1", &C::connectorOrientationAngle1},
        fw_Field{"connectorOrientationAngle2", 26, "connectorOrientationAngle2", &C::connectorOrientationAngle2},
        fw_Field{"connectorOrientationAxis1", 27, "connectorOrientationAxis1", &C::connectorOrientationAxis1},
        fw_Field{"connectorOrientationAxis2", 28, "connectorOrientationAxis2", &C::connectorOrientationAxis2},
    };
  }

  kefC_PointFastener() = default;
  explicit kefC_PointFastener(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  bool IsAllLayers() const { return maximumLayers.IsLiteral(); }
  void SetMaximumLayers(kefC_AllEnum v) { AssertEditable(); maximumLayers = v; }
  const rgnC_Region& GetTargetSurface() const { return targetSurface; }
  void SetTargetSurface(const rgnC_Region& v) { AssertEditable(); targetSurface = v; }
  const cow_List<rgnC_Region>& GetTargetSurfaces() const { return targetSurfaces; }
  void SetTargetSurfaces(const cow_List<rgnC_Region>& v) { AssertEditable(); targetSurfaces = v; }
  const cow_List<double>& GetDirectionVector() const { return directionVector; }
  void SetDirectionVector(const cow_List<double>& v) { AssertEditable(); directionVector = v; }
  double GetSearchRadius() const { return searchRadius; }
  void SetSearchRadius(double v) { AssertEditable(); searchRadius = v; }
  std::int32_t GetMaximumLayers() const { return maximumLayers.value; }
  void SetMaximumLayers(std::int32_t v) { AssertEditable(); maximumLayers = v; }
  bool GetAdjustOrientation() const { return adjustOrientation; }
  void SetAdjustOrientation(bool v) { AssertEditable(); adjustOrientation = v; }
  bool GetUnsorted() const { return unsorted; }
  void SetUnsorted(bool v) { AssertEditable(); unsorted = v; }
  double GetPhysicalRadius() const { return physicalRadius; }
  void SetPhysicalRadius(double v) { AssertEditable(); physicalRadius = v; }
  double GetAdditionalMass() const { return additionalMass; }
  void SetAdditionalMass(double v) { AssertEditable(); additionalMass = v; }
  kefC_PointAdherendEnum GetConnectionType() const { return connectionType; }
  void SetConnectionType(kefC_PointAdherendEnum v) { AssertEditable(); connectionType = v; }
  kefC_AttachmentMethodEnum GetAttachmentMethod() const { return attachmentMethod; }
  void SetAttachmentMethod(kefC_AttachmentMethodEnum v) { AssertEditable(); attachmentMethod = v; }
  const cow_String& GetSectionName() const { return sectionName; }
  void SetSectionName(const cow_String& v) { AssertEditable(); sectionName = v; }
  const cow_String& GetConnectorOrientationLocalCsys1() const { return connectorOrientationLocalCsys1; }
  void SetConnectorOrientationLocalCsys1(const cow_String& v) { AssertEditable(); connectorOrientationLocalCsys1 = v; }
  const cow_String& GetConnectorOrientationLocalCsys2() const { return connectorOrientationLocalCsys2; }
  void SetConnectorOrientationLocalCsys2(const cow_String& v) { AssertEditable(); connectorOrientationLocalCsys2 = v; }
  bool GetConnectorOrientation2sameAs1() const { return connectorOrientation2sameAs1; }
  void SetConnectorOrientation2sameAs1(bool v) { AssertEditable(); connectorOrientation2sameAs1 = v; }
  double GetConnectorOrientationAngle1() const { return connectorOrientationAngle1; }
  void SetConnectorOrientationAngle1(double v) { AssertEditable(); connectorOrientationAngle1 = v; }
  double GetConnectorOrientationAngle2() const { return connectorOrientationAngle2; }
  void SetConnectorOrientationAngle2(double v) { AssertEditable(); connectorOrientationAngle2 = v; }
  kefC_AxisEnum GetConnectorOrientationAxis1() const { return connectorOrientationAxis1; }
  void SetConnectorOrientationAxis1(kefC_AxisEnum v) { AssertEditable(); connectorOrientationAxis1 = v; }
  kefC_AxisEnum GetConnectorOrientationAxis2() const { return connectorOrientationAxis2; }
  void SetConnectorOrientationAxis2(kefC_AxisEnum v) { AssertEditable(); connectorOrientationAxis2 = v; }

 private:
  rgnC_Region targetSurface;
  cow_List<rgnC_Region> targetSurfaces;
  cow_List<double> directionVector;  // two points, six coordinates; empty for the normals
  fw_Unspecified searchRadius = kefC_kUnspecified;  // unspecified: the solver's default
  fw_OrLiteral<std::int32_t, kefC_AllEnum> maximumLayers;  // "ALL" (the default) or a number
  bool adjustOrientation = true;
  bool unsorted = false;
  double physicalRadius = 0.1;
  double additionalMass = 0.0;
  kefC_PointAdherendEnum connectionType = kefC_PointAdherendEnum::CONNECTOR;
  kefC_AttachmentMethodEnum attachmentMethod = kefC_AttachmentMethodEnum::FACETOFACE;
  cow_String sectionName;  // the connector or MPC section
  cow_String connectorOrientationLocalCsys1;
  cow_String connectorOrientationLocalCsys2;
  bool connectorOrientation2sameAs1 = true;
  double connectorOrientationAngle1 = 0.0;
  double connectorOrientationAngle2 = 0.0;
  kefC_AxisEnum connectorOrientationAxis1 = kefC_AxisEnum::AXIS_1;
  kefC_AxisEnum connectorOrientationAxis2 = kefC_AxisEnum::AXIS_1;
};

extern template class fw_PersistentClass<kefC_PointFastener, kefC_Fastener>;
