#include "kbp/kbpC_Descriptions.h"
#include "kbp/kbpC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKbpDescArbitraryProfile[] = {
    {"table", "The points (table: x, y, thickness of the segment that ends at the point)"},
};
constexpr int kKbpCodesArbitraryProfile[] = {11, 12, 38};
constexpr cls_MemberDescription kKbpDescBoxProfile[] = {
    {"a", "Width (above 0)"},
    {"b", "Height (above 0)"},
    {"uniformThickness", "Whether one wall thickness t1 holds for all four walls"},
    {"t1", "Thickness of the first wall (the only one when uniform)"},
    {"t2", "Thickness of the second wall"},
    {"t3", "Thickness of the third wall"},
    {"t4", "Thickness of the fourth wall"},
};
constexpr int kKbpCodesBoxProfile[] = {7, 8, 10, 15, 16, 11, 13, 14};
constexpr cls_MemberDescription kKbpDescCbeamProfile[] = {
    {"l", "Distance of the reference point from the bottom flange"},
    {"h", "Height (above 0)"},
    {"b1", "Width of the bottom flange"},
    {"b2", "Width of the top flange"},
    {"t1", "Thickness of the bottom flange"},
    {"t2", "Thickness of the top flange"},
    {"t3", "Thickness of the web (above 0)"},
    {"o", "Offset o of the profile"},
};
constexpr int kKbpCodesCbeamProfile[] = {7, 18, 21, 19, 11, 40, 16, 39, 20};
constexpr cls_MemberDescription kKbpDescCircularProfile[] = {
    {"r", "Radius (above 0)"},
};
constexpr int kKbpCodesCircularProfile[] = {9};
constexpr cls_MemberDescription kKbpDescGeneralizedProfile[] = {
    {"area", "Cross-section area (above 0)"},
    {"i11", "Moment of inertia about the first axis (above 0)"},
    {"i12", "Product of inertia"},
    {"i22", "Moment of inertia about the second axis (at least 0)"},
    {"j", "Torsional constant (at least 0)"},
    {"gammaO", "Sectorial moment about the shear center"},
    {"gammaW", "Warping constant"},
};
constexpr int kKbpCodesGeneralizedProfile[] = {0, 1, 6, 2, 3, 5};
constexpr cls_MemberDescription kKbpDescHatProfile[] = {
    {"l", "Distance of the reference point from the bottom"},
    {"h", "Height (above 0)"},
    {"b", "Width of the top"},
    {"b1", "Bottom flange width b1"},
    {"b2", "Bottom flange width b2 (at least one flange width above 0)"},
    {"t1", "Thickness of the top"},
    {"t2", "Thickness of the bottom flanges"},
    {"t3", "Thickness of the webs (above 0)"},
};
constexpr int kKbpCodesHatProfile[] = {7, 18, 11, 40, 16, 41, 20, 21, 19};
constexpr cls_MemberDescription kKbpDescHexagonalProfile[] = {
    {"r", "Outer radius (above 0)"},
    {"t", "Wall thickness (above 0, below sqrt(3)/2 times r)"},
};
constexpr int kKbpCodesHexagonalProfile[] = {9, 27, 22};
constexpr cls_MemberDescription kKbpDescIbeamProfile[] = {
    {"l", "Distance of the reference point from the bottom flange"},
    {"h", "Height (above 0)"},
    {"b1", "Width of the bottom flange"},
    {"b2", "Width of the top flange"},
    {"t1", "Thickness of the bottom flange"},
    {"t2", "Thickness of the top flange"},
    {"t3", "Thickness of the web (above 0)"},
};
constexpr int kKbpCodesIbeamProfile[] = {7, 18, 19, 21, 20, 11};
constexpr cls_MemberDescription kKbpDescLbeamProfile[] = {
    {"a", "Width of the horizontal leg (above 0)"},
    {"b", "Height of the vertical leg (above 0)"},
    {"t1", "Thickness of the horizontal leg (below b)"},
    {"t2", "Thickness of the vertical leg (below a)"},
};
constexpr int kKbpCodesLbeamProfile[] = {23, 24, 28, 29, 32, 34};
constexpr cls_MemberDescription kKbpDescPipeProfile[] = {
    {"r", "Outer radius (above 0)"},
    {"t", "Wall thickness (above 0, below r)"},
    {"integrationScheme", "Whether the wall is integrated as thin or as thick"},
};
constexpr int kKbpCodesPipeProfile[] = {9, 10, 17};
constexpr cls_MemberDescription kKbpDescRectangularProfile[] = {
    {"a", "Width (above 0)"},
    {"b", "Height (above 0)"},
};
constexpr int kKbpCodesRectangularProfile[] = {23, 24};
constexpr cls_MemberDescription kKbpDescTbeamProfile[] = {
    {"b", "Width of the flange (above 0)"},
    {"h", "Height (above 0)"},
    {"l", "Distance of the reference point from the flange"},
    {"tf", "Thickness of the flange (above 0, below h)"},
    {"tw", "Thickness of the web (above 0, below b)"},
};
constexpr int kKbpCodesTbeamProfile[] = {24, 26, 31, 30, 36, 37};
constexpr cls_MemberDescription kKbpDescTrapezoidalProfile[] = {
    {"a", "Width of the bottom (above 0)"},
    {"b", "Height (above 0)"},
    {"c", "Width of the top (above 0)"},
    {"d", "Offset of the top from the bottom"},
};
constexpr int kKbpCodesTrapezoidalProfile[] = {23, 24, 25};
constexpr cls_ClassDescription kKbpDescriptions[] = {
    {"kbpC_ArbitraryProfile",
     "A thin-walled section given by a path of points.",
     kKbpDescArbitraryProfile, nullptr, kKbpCodesArbitraryProfile},
    {"kbpC_BeamProfile",
     "The cross-section of a beam: the abstract root of the profile family.",
     {}},
    {"kbpC_BoxProfile",
     "A hollow rectangle of width a and height b.",
     kKbpDescBoxProfile, nullptr, kKbpCodesBoxProfile},
    {"kbpC_CbeamProfile",
     "A channel: height h, the centroid's distance l from the bottom, bottom and top flange "
     "widths b1 and b2, bottom and top flange thicknesses t1 and t2, web thickness t3 and the "
     "web's offset o.",
     kKbpDescCbeamProfile, nullptr, kKbpCodesCbeamProfile},
    {"kbpC_CircularProfile",
     "A solid circle of radius r.",
     kKbpDescCircularProfile, nullptr, kKbpCodesCircularProfile},
    {"kbpC_GeneralizedProfile",
     "A section given by its properties: area, moments of inertia i11, i12, i22, torsional "
     "constant j, sectorial moment gammaO and warping constant gammaW.",
     kKbpDescGeneralizedProfile, nullptr, kKbpCodesGeneralizedProfile},
    {"kbpC_HatProfile",
     "A hat section: height h, the centroid's distance l from the bottom, crown width b, brim "
     "widths b1 and b2, crown and brim thicknesses t1 and t2, wall thickness t3.",
     kKbpDescHatProfile, nullptr, kKbpCodesHatProfile},
    {"kbpC_HexagonalProfile",
     "A hollow regular hexagon of outer radius r and wall thickness t.",
     kKbpDescHexagonalProfile, nullptr, kKbpCodesHexagonalProfile},
    {"kbpC_IbeamProfile",
     "An I section: height h, the centroid's distance l from the bottom, bottom and top flange "
     "widths b1 and b2, bottom and top flange thicknesses t1 and t2, web thickness t3.",
     kKbpDescIbeamProfile, nullptr, kKbpCodesIbeamProfile},
    {"kbpC_LbeamProfile",
     "An L section: leg widths a and b, thicknesses t1 and t2.",
     kKbpDescLbeamProfile, nullptr, kKbpCodesLbeamProfile},
    {"kbpC_PipeProfile",
     "A thin or thick walled tube of outer radius r and wall thickness t.",
     kKbpDescPipeProfile, nullptr, kKbpCodesPipeProfile},
    {"kbpC_RectangularProfile",
     "A solid rectangle of width a and height b.",
     kKbpDescRectangularProfile, nullptr, kKbpCodesRectangularProfile},
    {"kbpC_TbeamProfile",
     "A T section: flange width b, height h, the centroid's distance l from the top, flange "
     "thickness tf and web thickness tw.",
     kKbpDescTbeamProfile, nullptr, kKbpCodesTbeamProfile},
    {"kbpC_TrapezoidalProfile",
     "A solid trapezoid: top width a, height b, bottom width c and the offset d of the top's "
     "start from the bottom's.",
     kKbpDescTrapezoidalProfile, nullptr, kKbpCodesTrapezoidalProfile},
};
}  // namespace

std::span<const cls_ClassDescription> kbpC_DescriptionsTable() { return kKbpDescriptions; }

void kbpC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kbpC_ErrorMessage(static_cast<kbpC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kbp", kbpC_DescriptionsTable(), messages);
}
void kbpC_UnregisterDescriptions() { cls_UnregisterDescriptions("kbp"); }
