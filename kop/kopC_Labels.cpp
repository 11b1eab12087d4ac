#include "kop/kopC_Labels.h"

#include <memory>

#include "kop/kopC_BeadTask.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_TopologyTask.h"
#include "platform/base/atr_String.h"

namespace {
constexpr unsigned kKinds[4] = {kopC_TopologyTask::TypeId(), kopC_ShapeTask::TypeId(), kopC_SizingTask::TypeId(),
                                kopC_BeadTask::TypeId()};
constexpr const char* kLongLabels[4] = {"Topology optimization", "Shape optimization", "Sizing optimization",
                                        "Bead optimization"};
constexpr const char* kShortLabels[4] = {"Topology", "Shape", "Sizing", "Bead"};

constexpr kopC_VariableSpecLabelMap::Entry kSpecs[] = {
    {"BEAD_HEIGHT", "Bead height", "Bead height"},
    {"CENTER_GRAVITY_X", "Center of gravity", "Center of gravity, X"},
    {"CENTER_GRAVITY_Y", "Center of gravity", "Center of gravity, Y"},
    {"CENTER_GRAVITY_Z", "Center of gravity", "Center of gravity, Z"},
    {"DAMAGE_LC", "Damage (single)", "Damage of a single load case"},
    {"DISP_ABS", "Displacement", "Displacement, magnitude"},
    {"DISP_X", "Displacement", "Displacement, X"},
    {"DISP_X_ABS", "Displacement", "Displacement, X, absolute"},
    {"DISP_Y", "Displacement", "Displacement, Y"},
    {"DISP_Y_ABS", "Displacement", "Displacement, Y, absolute"},
    {"DISP_Z", "Displacement", "Displacement, Z"},
    {"DISP_Z_ABS", "Displacement", "Displacement, Z, absolute"},
    {"DYN_FREQ", "Eigenfrequency from modal analysis", "Eigenfrequency"},
    {"DYN_FREQ_KREISSEL", "Eigenfrequency (Kreisselmeier-Steinhauser)", "Eigenfrequency, aggregated"},
    {"INERTIA_XX", "Moment of inertia", "Moment of inertia, XX"},
    {"INERTIA_XY", "Moment of inertia", "Moment of inertia, XY"},
    {"INERTIA_XZ", "Moment of inertia", "Moment of inertia, XZ"},
    {"INERTIA_YY", "Moment of inertia", "Moment of inertia, YY"},
    {"INERTIA_YZ", "Moment of inertia", "Moment of inertia, YZ"},
    {"INERTIA_ZZ", "Moment of inertia", "Moment of inertia, ZZ"},
    {"INTERNAL_FORCE_ABS", "Internal force", "Internal force, magnitude"},
    {"INTERNAL_FORCE_X", "Internal force", "Internal force, X"},
    {"INTERNAL_FORCE_X_ABS", "Internal force", "Internal force, X, absolute"},
    {"INTERNAL_FORCE_Y", "Internal force", "Internal force, Y"},
    {"INTERNAL_FORCE_Y_ABS", "Internal force", "Internal force, Y, absolute"},
    {"INTERNAL_FORCE_Z", "Internal force", "Internal force, Z"},
    {"INTERNAL_FORCE_Z_ABS", "Internal force", "Internal force, Z, absolute"},
    {"INTERNAL_ROT_ABS", "Internal rotation", "Internal rotation, magnitude"},
    {"INTERNAL_ROT_X", "Internal rotation", "Internal rotation, X"},
    {"INTERNAL_ROT_X_ABS", "Internal rotation", "Internal rotation, X, absolute"},
    {"INTERNAL_ROT_Y", "Internal rotation", "Internal rotation, Y"},
    {"INTERNAL_ROT_Y_ABS", "Internal rotation", "Internal rotation, Y, absolute"},
    {"INTERNAL_ROT_Z", "Internal rotation", "Internal rotation, Z"},
    {"INTERNAL_ROT_Z_ABS", "Internal rotation", "Internal rotation, Z, absolute"},
    {"INTERNAL_MOMENT_ABS", "Internal moment", "Internal moment, magnitude"},
    {"INTERNAL_MOMENT_X", "Internal moment", "Internal moment, X"},
    {"INTERNAL_MOMENT_X_ABS", "Internal moment", "Internal moment, X, absolute"},
    {"INTERNAL_MOMENT_Y", "Internal moment", "Internal moment, Y"},
    {"INTERNAL_MOMENT_Y_ABS", "Internal moment", "Internal moment, Y, absolute"},
    {"INTERNAL_MOMENT_Z", "Internal moment", "Internal moment, Z"},
    {"INTERNAL_MOMENT_Z_ABS", "Internal moment", "Internal moment, Z, absolute"},
    {"REACTION_FORCE_ABS", "Reaction force", "Reaction force, magnitude"},
    {"REACTION_FORCE_X", "Reaction force", "Reaction force, X"},
    {"REACTION_FORCE_X_ABS", "Reaction force", "Reaction force, X, absolute"},
    {"REACTION_FORCE_Y", "Reaction force", "Reaction force, Y"},
    {"REACTION_FORCE_Y_ABS", "Reaction force", "Reaction force, Y, absolute"},
    {"REACTION_FORCE_Z", "Reaction force", "Reaction force, Z"},
    {"REACTION_FORCE_Z_ABS", "Reaction force", "Reaction force, Z, absolute"},
    {"REACTION_ROT_ABS", "Reaction rotation", "Reaction rotation, magnitude"},
    {"REACTION_ROT_X", "Reaction rotation", "Reaction rotation, X"},
    {"REACTION_ROT_X_ABS", "Reaction rotation", "Reaction rotation, X, absolute"},
    {"REACTION_ROT_Y", "Reaction rotation", "Reaction rotation, Y"},
    {"REACTION_ROT_Y_ABS", "Reaction rotation", "Reaction rotation, Y, absolute"},
    {"REACTION_ROT_Z", "Reaction rotation", "Reaction rotation, Z"},
    {"REACTION_ROT_Z_ABS", "Reaction rotation", "Reaction rotation, Z, absolute"},
    {"REACTION_MOMENT_ABS", "Reaction moment", "Reaction moment, magnitude"},
    {"REACTION_MOMENT_X", "Reaction moment", "Reaction moment, X"},
    {"REACTION_MOMENT_X_ABS", "Reaction moment", "Reaction moment, X, absolute"},
    {"REACTION_MOMENT_Y", "Reaction moment", "Reaction moment, Y"},
    {"REACTION_MOMENT_Y_ABS", "Reaction moment", "Reaction moment, Y, absolute"},
    {"REACTION_MOMENT_Z", "Reaction moment", "Reaction moment, Z"},
    {"REACTION_MOMENT_Z_ABS", "Reaction moment", "Reaction moment, Z, absolute"},
    {"ROT_ABS", "Rotation", "Rotation, magnitude"},
    {"ROT_X", "Rotation", "Rotation, X"},
    {"ROT_X_ABS", "Rotation", "Rotation, X, absolute"},
    {"ROT_Y", "Rotation", "Rotation, Y"},
    {"ROT_Y_ABS", "Rotation", "Rotation, Y, absolute"},
    {"ROT_Z", "Rotation", "Rotation, Z"},
    {"ROT_Z_ABS", "Rotation", "Rotation, Z, absolute"},
    {"SIG_1", "Stress", "Stress, 1"},
    {"SIG_2", "Stress", "Stress, 2"},
    {"SIG_3", "Stress", "Stress, 3"},
    {"SIG_ABS_123", "Stress", "Maximum absolute principal stress"},
    {"SIG_ABS_3", "Stress", "Absolute third principal stress"},
    {"SIG_BELTRAMI", "Stress", "Stress, Beltrami"},
    {"SIG_DRUCKER_PRAGER", "Stress", "Stress, Drucker Prager"},
    {"SIG_GALILEI", "Stress", "Stress, Galilei"},
    {"SIG_KUHN", "Stress", "Stress, Kuhn"},
    {"SIG_MARIOTTE", "Stress", "Stress, Mariotte"},
    {"SIG_MISES", "Stress", "Stress, Mises"},
    {"SIG_SANDEL", "Stress", "Stress, Sandel"},
    {"SIG_SAUTER", "Stress", "Stress, Sauter"},
    {"SIG_TRESCA", "Stress", "Stress, Tresca"},
    {"SIG_CONTACT_PRESSURE", "Contact stress", "Contact pressure"},
    {"SIG_CONTACT_SHEAR", "Contact stress", "Contact shear"},
    {"SIG_CONTACT_SHEAR_X", "Contact stress", "Contact shear x"},
    {"SIG_CONTACT_SHEAR_Y", "Contact stress", "Contact shear y"},
    {"SIG_CONTACT_TOTAL", "Contact stress", "Contact total"},
    {"STRAIN_ELASTIC", "Strain", "Elastic strain"},
    {"STRAIN_PLASTIC", "Strain", "Plastic strain"},
    {"STRAIN_TOTAL", "Strain", "Total strain"},
    {"TSR_ND_PEEQ", "Strain", "Equivalent plastic strain"},
    {"STRAIN_ENERGY", "Strain energy", "Strain energy"},
    {"STRAIN_ENERGY_DENS", "Strain energy density", "Strain energy density"},
    {"VOLUME", "Volume", "Volume"},
    {"WEIGHT", "Weight", "Weight"},
    {"SIG_TOPO_MISES", "Stress (topology)", "Mises stress for topology optimization"},
    {"ENERGY_STIFF_MEASURE", "Energy stiffness measure", "Energy stiffness measure"},
    {"SIG_MISES_SHAPESENS", "Stress (shape sensitivity)", "Mises stress with shape sensitivities"},
    {"SIG_SENS_MISES", "Stress (sensitivity)", "Mises stress sensitivity"},
    {"PEMAG", "Sound pressure level (dBA)", "Sound pressure level"},
    {"SIG_GLINKA_EEQ", "Fatigue equivalents", "Glinka equivalent strain"},
    {"SIG_GLINKA_PEEQ", "Fatigue equivalents", "Glinka equivalent plastic strain"},
    {"SIG_GLINKA_SEQ", "Fatigue equivalents", "Glinka equivalent stress"},
    {"SIG_NEUBER_EEQ", "Fatigue equivalents", "Neuber equivalent strain"},
    {"SIG_NEUBER_PEEQ", "Fatigue equivalents", "Neuber equivalent plastic strain"},
    {"SIG_NEUBER_SEQ", "Fatigue equivalents", "Neuber equivalent stress"},
};

std::unique_ptr<kopC_TaskTypeLabelMap> longMap;
std::unique_ptr<kopC_ShortenedTaskTypeLabelMap> shortMap;
std::unique_ptr<kopC_VariableSpecLabelMap> variableLabelMap;

bool StartsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }
}  // namespace

kopC_TaskLabelMapBase::kopC_TaskLabelMapBase(const char* const (&labels)[4]) {
  for (int i = 0; i < 4; ++i) entries_.emplace_back(kKinds[i], cow_String(atr_translate(labels[i]).Text()));
}

cow_String kopC_TaskLabelMapBase::Label(unsigned typeId) const {
  for (const auto& [id, label] : entries_)
    if (id == typeId) return label;
  return cow_String();
}

kopC_TaskTypeLabelMap::kopC_TaskTypeLabelMap() : kopC_TaskLabelMapBase(kLongLabels) {}
const kopC_TaskTypeLabelMap& kopC_TaskTypeLabelMap::Instance() {
  if (!longMap) longMap.reset(new kopC_TaskTypeLabelMap());
  return *longMap;
}
void kopC_TaskTypeLabelMap::Finalize() { longMap.reset(); }

kopC_ShortenedTaskTypeLabelMap::kopC_ShortenedTaskTypeLabelMap() : kopC_TaskLabelMapBase(kShortLabels) {}
const kopC_ShortenedTaskTypeLabelMap& kopC_ShortenedTaskTypeLabelMap::Instance() {
  if (!shortMap) shortMap.reset(new kopC_ShortenedTaskTypeLabelMap());
  return *shortMap;
}
void kopC_ShortenedTaskTypeLabelMap::Finalize() { shortMap.reset(); }

kopC_VariableSpecLabelMap::kopC_VariableSpecLabelMap() : entries_(std::begin(kSpecs), std::end(kSpecs)) {}
const kopC_VariableSpecLabelMap& kopC_VariableSpecLabelMap::Instance() {
  if (!variableLabelMap) variableLabelMap.reset(new kopC_VariableSpecLabelMap());
  return *variableLabelMap;
}
void kopC_VariableSpecLabelMap::Finalize() { variableLabelMap.reset(); }

const kopC_VariableSpecLabelMap::Entry* kopC_VariableSpecLabelMap::Find(std::string_view identifier) const {
  for (const Entry& e : entries_)
    if (identifier == e.identifier) return &e;
  return nullptr;
}

bool kopC_IsStepFreeIdentifier(std::string_view id) {
  return id == "VOLUME" || id == "WEIGHT" || StartsWith(id, "CENTER_GRAVITY_") || StartsWith(id, "INERTIA_");
}

bool kopC_IsGlobalIdentifier(std::string_view id) {
  return kopC_IsStepFreeIdentifier(id) || id == "STRAIN_ENERGY" || id == "ENERGY_STIFF_MEASURE";
}

bool kopC_IsLayeredIdentifier(std::string_view id) {
  if (id == "STRAIN_ENERGY" || id == "STRAIN_ENERGY_DENS" || StartsWith(id, "SIG_CONTACT_")) return false;
  return StartsWith(id, "SIG_") || StartsWith(id, "STRAIN_") || id == "TSR_ND_PEEQ";
}
