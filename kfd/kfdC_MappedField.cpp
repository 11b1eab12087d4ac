#include "kfd/kfdC_MappedField.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kfd/kfdC_assert.h"

kfdC_MappedField::kfdC_MappedField(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kfdC_MappedField::AssertValid() const {
  AssertAnalyticalValid();
  if (isRelTol) {
    const bool positive = boundarySearchTol > 0 && neighborSearchTol > 0 && negNormalSearchTol > 0 &&
                          posNormalSearchTol > 0 && interpolationTol > 0;
    kfdC_Assert(positive, kfdC_RelativeToleranceNotPositive);
  }
  if (regionType != regionTypeEnum::POINT) return;
  const std::size_t width = ValueWidth();
  if (isGridFormat) {
    const std::array<int, 2> axes = GridPlaneAxes(static_cast<std::int32_t>(gridPointPlane));
    const std::int32_t intervals[3] = {numXInterval, numYInterval, numZInterval};
    const std::int32_t a = intervals[axes[0]], b = intervals[axes[1]];
    bool ok = a >= 1 && b >= 1 && gridCoordTable.Columns() == 2 && gridFieldTable.Columns() == width &&
              gridFieldTable.Rows() == gridCoordTable.Rows();
    ok = ok && static_cast<long long>(gridCoordTable.Rows()) == (static_cast<long long>(a) + 1) * (static_cast<long long>(b) + 1);
    kfdC_Assert(ok, kfdC_InvalidGridData);
  } else {
    kfdC_Assert(xyzDataTable.Rows() >= 1 && xyzDataTable.Columns() == 3 + width, kfdC_InvalidXyzData);
  }
}

const kfdC_OdbMeshRegionData& kfdC_MappedField::GetOdbMeshRegionData() const {
  if (odbMeshRegion.IsNull()) nex_ThrowCmd("The mapped field has no results source (odbMeshRegionData)");
  return odbMeshRegion.Get();
}

std::size_t kfdC_MappedField::ValueWidth() const {
  switch (fieldDataType) {
    case fieldDataTypeEnum::VECTOR: return 3;
    case fieldDataTypeEnum::TENSOR: return 6;
    default: return 1;
  }
}

std::array<int, 2> kfdC_MappedField::GridPlaneAxes(std::int32_t planeKey) {
  static constexpr std::array<int, 2> kAxes[] = {{0, 1}, {1, 2}, {0, 2}, {1, 0}, {2, 1}, {2, 0}};
  const bool known = planeKey >= 0 && static_cast<std::size_t>(planeKey) < std::size(kAxes);
  kfdC_Assert(known, kfdC_UnknownGridPointPlane);
  return kAxes[planeKey];
}

cow_2DArray<double> kfdC_MappedField::GetGridPointData() const {
  const std::size_t rows = gridCoordTable.Rows();
  const std::size_t coords = gridCoordTable.Columns(), values = gridFieldTable.Columns();
  cow_2DArray<double> out(rows, coords + values);
  for (std::size_t r = 0; r < rows; ++r) {
    for (std::size_t c = 0; c < coords; ++c) out(r, c) = gridCoordTable(r, c);
    for (std::size_t c = 0; c < values && r < gridFieldTable.Rows(); ++c) out(r, coords + c) = gridFieldTable(r, c);
  }
  return out;
}

void kfdC_MappedField::SetGridPointData(const cow_2DArray<double>& rows) {
  kfdC_Assert(rows.Rows() == 0 || rows.Columns() >= 3, kfdC_InvalidGridData);
  const std::size_t n = rows.Rows(), values = n ? rows.Columns() - 2 : 0;
  cow_2DArray<double> coords(n, n ? 2 : 0), fields(n, values);
  for (std::size_t r = 0; r < n; ++r) {
    coords(r, 0) = rows(r, 0);
    coords(r, 1) = rows(r, 1);
    for (std::size_t c = 0; c < values; ++c) fields(r, c) = rows(r, 2 + c);
  }
  gridCoordTable = coords;
  gridFieldTable = fields;
}

void kfdC_MappedField::addGridPointData(const cow_List<double>& row) {
  const std::size_t width = ValueWidth();
  kfdC_Assert(row.size() == 2 + width, kfdC_InvalidGridData);
  const cow_2DArray<double> all = GetGridPointData();
  const std::size_t n = all.Rows();
  kfdC_Assert(n == 0 || all.Columns() == 2 + width, kfdC_InvalidGridData);
  cow_2DArray<double> grown(n + 1, 2 + width);
  for (std::size_t r = 0; r < n; ++r)
    for (std::size_t c = 0; c < 2 + width; ++c) grown(r, c) = all(r, c);
  for (std::size_t c = 0; c < 2 + width; ++c) grown(n, c) = row[c];
  SetGridPointData(grown);
}

void kfdC_MappedField::removeGridPointData(std::int32_t index) {
  const cow_2DArray<double> all = GetGridPointData();
  kfdC_Assert(index >= 0 && static_cast<std::size_t>(index) < all.Rows(), kfdC_InvalidGridData);
  cow_2DArray<double> shrunk(all.Rows() - 1, all.Rows() > 1 ? all.Columns() : 0);
  for (std::size_t r = 0, out = 0; r < all.Rows(); ++r) {
    if (r == static_cast<std::size_t>(index)) continue;
    for (std::size_t c = 0; c < shrunk.Columns(); ++c) shrunk(out, c) = all(r, c);
    ++out;
  }
  SetGridPointData(shrunk);
}

// --- scripting: the members stored in another form than scripts see them ---------------------------

namespace {
using MF = kfdC_MappedField;

const MF& Obj(const void* p) { return *static_cast<const MF*>(static_cast<const kfdC_Field*>(p)); }
MF& Obj(void* p) { return *static_cast<MF*>(static_cast<kfdC_Field*>(p)); }

template <class E>
E Literal(const char* member, const cls_Value& v) {
  if (auto s = std::get_if<cow_String>(&v)) return omu_PrimEnum<E, 1>(*s).GetValue();
  if (auto i = std::get_if<std::int32_t>(&v)) return omu_PrimEnum<E, 1>(static_cast<E>(*i)).GetValue();
  fw_RefuseKind(member, v, "an enumeration literal");
}

cls_ScriptField PointDataFormat(const cls_ScriptField& stored) {
  cls_ScriptField f = stored;
  f.scriptName = "pointDataFormat";
  f.type = cls_AttrEnum;
  f.literals = MF::kPointDataFormatLiterals;
  f.get = [](const void* p) -> cls_Value {
    return omu_PrimEnum<MF::pointDataFormatEnum, 1>(Obj(p).GetPointDataFormat()).GetString();
  };
  f.set = [](void* p, const cls_Value& v) {
    Obj(p).SetPointDataFormat(Literal<MF::pointDataFormatEnum>("pointDataFormat", v));
  };
  return f;
}

cls_ScriptField SearchTolType(const cls_ScriptField& stored) {
  cls_ScriptField f = stored;
  f.scriptName = "searchTolType";
  f.type = cls_AttrEnum;
  f.literals = MF::kSearchTolTypeLiterals;
  f.get = [](const void* p) -> cls_Value {
    return omu_PrimEnum<MF::searchTolTypeEnum, 1>(Obj(p).GetSearchTolType()).GetString();
  };
  f.set = [](void* p, const cls_Value& v) { Obj(p).SetSearchTolType(Literal<MF::searchTolTypeEnum>("searchTolType", v)); };
  return f;
}

cls_ScriptField GridPointData(const cls_ScriptField& stored) {
  cls_ScriptField f = stored;
  f.scriptName = "gridPointData";
  f.get = [](const void* p) -> cls_Value { return Obj(p).GetGridPointData(); };
  f.set = [](void* p, const cls_Value& v) {
    auto t = std::get_if<cow_2DArray<double>>(&v);
    if (!t) fw_RefuseKind("gridPointData", v, "a table of numbers");
    Obj(p).SetGridPointData(*t);
  };
  return f;
}

cls_ScriptField CoordinateScalingFactors(const cls_ScriptField& stored) {
  cls_ScriptField f = stored;
  f.scriptName = "coordinateScalingFactors";
  f.type = cls_AttrDoubleList;
  f.get = [](const void* p) -> cls_Value {
    const auto s = Obj(p).GetCoordinateScalingFactors();
    return std::vector<double>(s.begin(), s.end());
  };
  f.set = [](void* p, const cls_Value& v) {
    std::vector<double> s;
    if (auto d = std::get_if<std::vector<double>>(&v)) s = *d;
    else if (auto i = std::get_if<std::vector<std::int32_t>>(&v)) s.assign(i->begin(), i->end());
    else fw_RefuseKind("coordinateScalingFactors", v, "a list of numbers");
    if (s.size() != 3)
      nex_ThrowCmd("The member \"coordinateScalingFactors\" of MappedField takes three numbers, not " +
                   std::to_string(s.size()));
    Obj(p).SetCoordinateScalingFactors({s[0], s[1], s[2]});
  };
  return f;
}

// Scripts see the members in this order; the stored fields behind the four composed ones are not
// offered on their own.
std::vector<cls_ScriptField> MappedFieldScriptFields() {
  const std::vector<cls_ScriptField> stored =
      fw_MakeScriptFields<MF>(std::make_index_sequence<std::tuple_size_v<decltype(MF::Fields())>>());
  auto by = [&](const char* persistentName) -> const cls_ScriptField& {
    for (const auto& f : stored)
      if (std::string_view(f.persistentName) == persistentName) return f;
    nex_ThrowCmd(std::string("kfdC_MappedField has no stored field ") + persistentName);
  };
  return {by("csys"), by("csysType"), by("csysPartName"), by("regionType"), by("fieldDataType"),
          by("isPartLevelData"), PointDataFormat(by("isGridFormat")), by("gridPointPlane"),
          GridPointData(by("gridFieldTable")), by("xyzDataTable"), by("defMappedVal"), by("mappingAlgorithm"),
          SearchTolType(by("isRelTol")), by("boundarySearchTol"), by("neighborSearchTol"), by("negNormalSearchTol"),
          by("posNormalSearchTol"), by("interpolationTol"), by("odbMeshRegion"), by("scaleCoordinates"),
          CoordinateScalingFactors(by("coordScale1")), by("numXInterval"), by("numYInterval"), by("numZInterval")};
}

class MappedFieldMetadata final : public cls_TypedMetadata<MF> {
 public:
  const std::vector<cls_ScriptField>& ScriptFields() const override {
    if (!built_) {
      script_ = MappedFieldScriptFields();
      built_ = true;
    }
    return script_;
  }

 private:
  mutable std::vector<cls_ScriptField> script_;
  mutable bool built_ = false;
};
}  // namespace

// The stored attributes come from the field table as for every class; only the scripting face is
// composed by hand.
void kfdC_MappedField::InitializeMetadata(cls_ClassRegistrar& registrar) {
  static_assert(fw_NumbersUnique(Fields()), "field numbers must be unique within a class");
  static_assert(fw_NamesUnique(Fields()), "persistent and scripting names must be unique within a class");
  auto* md = new MappedFieldMetadata();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
  std::apply(
      [&](const auto&... f) {
        (md->AddAttribute(cls_FieldHandle(f.number, f.name),
                          fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kType, 1,
                          fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kCollection),
         ...);
      },
      Fields());
}

template class fw_PersistentClass<kfdC_MappedField, kfdC_AnalyticalField>;
