#include "kbp/kbpC_Descriptions.h"
#include "kbp/kbpC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKbpDescArbitraryProfile[] = {
    {"table", "Table"},
};
constexpr int kKbpCodesArbitraryProfile[] = {11, 12, 38};
constexpr cls_MemberDescription kKbpDescBoxProfile[] = {
    {"a", "A"},
    {"b", "B"},
    {"uniformThickness", "Uniform thickness"},
    {"t1", "T1"},
    {"t2", "T2"},
    {"t3", "T3"},
    {"t4", "T4"},
};
constexpr int kKbpCodesBoxProfile[] = {7, 8, 10, 15, 16, 11, 13, 14};
constexpr cls_MemberDescription kKbpDescCbeamProfile[] = {
    {"l", "L"},
    {"h", "H"},
    {"b1", "B1"},
    {"b2", "B2"},
    {"t1", "T1"},
    {"t2", "T2"},
    {"t3", "T3"},
    {"o", "O"},
};
constexpr int kKbpCodesCbeamProfile[] = {7, 18, 21, 19, 11, 40, 16, 39, 20};
constexpr cls_MemberDescription kKbpDescCircularProfile[] = {
    {"r", "R"},
};
constexpr int kKbpCodesCircularProfile[] = {9};
constexpr cls_MemberDescription kKbpDescGeneralizedProfile[] = {
    {"area", "Area"},
    {"i11", "I11"},
    {"i12", "I12"},
    {"i22", "I22"},
    {"j", "J"},
    {"gammaO", "Gamma o"},
    {"gammaW", "Gamma w"},
};
constexpr int kKbpCodesGeneralizedProfile[] = {0, 1, 6, 2, 3, 5};
constexpr cls_MemberDescription kKbpDescHatProfile[] = {
    {"l", "L"},
    {"h", "H"},
    {"b", "B"},
    {"b1", "B1"},
    {"b2", "B2"},
    {"t1", "T1"},
    {"t2", "T2"},
    {"t3", "T3"},
};
constexpr int kKbpCodesHatProfile[] = {7, 18, 11, 40, 16, 41, 20, 21, 19};
constexpr cls_MemberDescription kKbpDescHexagonalProfile[] = {
    {"r", "R"},
    {"t", "T"},
};
constexpr int kKbpCodesHexagonalProfile[] = {9, 27, 22};
constexpr cls_MemberDescription kKbpDescIbeamProfile[] = {
    {"l", "L"},
    {"h", "H"},
    {"b1", "B1"},
    {"b2", "B2"},
    {"t1", "T1"},
    {"t2", "T2"},
    {"t3", "T3"},
};
constexpr int kKbpCodesIbeamProfile[] = {7, 18, 19, 21, 20, 11};
constexpr cls_MemberDescription kKbpDescLbeamProfile[] = {
    {"a", "A"},
    {"b", "B"},
    {"t1", "T1"},
    {"t2", "T2"},
};
constexpr int kKbpCodesLbeamProfile[] = {23, 24, 28, 29, 32, 34};
constexpr cls_MemberDescription kKbpDescPipeProfile[] = {
    {"r", "R"},
    {"t", "T"},
    {"integrationScheme", "\"THIN_WALL\", \"THICK_WALL\""},
};
constexpr int kKbpCodesPipeProfile[] = {9, 10, 17};
constexpr cls_MemberDescription kKbpDescRectangularProfile[] = {
    {"a", "A (width)"},
    {"b", "B (height)"},
};
constexpr int kKbpCodesRectangularProfile[] = {23, 24};
constexpr cls_MemberDescription kKbpDescTbeamProfile[] = {
    {"b", "B"},
    {"h", "H"},
    {"l", "L"},
    {"tf", "Tf"},
    {"tw", "Tw"},
};
constexpr int kKbpCodesTbeamProfile[] = {24, 26, 31, 30, 36, 37};
constexpr cls_MemberDescription kKbpDescTrapezoidalProfile[] = {
    {"a", "A"},
    {"b", "B"},
    {"c", "C"},
    {"d", "D"},
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
