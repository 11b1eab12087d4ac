#include "tests/dbfile/dbtT_Sample.h"

#include <cmath>
#include <limits>

#include "framework/fw_FieldTable.h"
#include "platform/model/ddr_Model.h"
#include "tests/support/qmx_test.h"

dbtT_Detail::dbtT_Detail(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void dbtT_Detail::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
dbtT_Detail* dbtT_Detail::Copy() const { return new dbtT_Detail(*this); }
bool dbtT_Detail::operator==(const dbtT_Detail& o) const { return fw_EqualFields(*this, o); }
void dbtT_Detail::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<dbtT_Detail>(r); }
void dbtT_Detail::CowDtor(void* p) { fw_CowDtor<dbtT_Detail>(p); }

dbtT_Sample::dbtT_Sample(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void dbtT_Sample::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
dbtT_Sample* dbtT_Sample::Copy() const { return new dbtT_Sample(*this); }
bool dbtT_Sample::operator==(const dbtT_Sample& o) const { return fw_EqualFields(*this, o); }
void dbtT_Sample::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<dbtT_Sample>(r); }
void dbtT_Sample::CowDtor(void* p) { fw_CowDtor<dbtT_Sample>(p); }

dbtT_Sample dbtT_Sample::Filled() {
  const double inf = std::numeric_limits<double>::infinity();
  dbtT_Sample s;
  s.count = -2147483647 - 1;
  s.ratio = std::numeric_limits<double>::quiet_NaN();
  s.enabled = true;
  static constexpr char kLabel[] = "quote \" backslash \\ tab\t newline\n end \xC3\xA9\xE2\x82\xAC";
  s.label = cow_String(std::string_view(kLabel, sizeof kLabel - 1));
  s.mode = ModeEnm::THIRD_MODE;
  s.region = rgnC_Region("Part-1.Set-2");
  s.table = cow_2DArray<double>{{1.0, -0.0, 1e-310}, {inf, -inf, 1.7976931348623157e308}};
  s.ints = cow_List<std::int32_t>{2147483647, -1, 0};
  s.doubles = cow_List<double>{0.1, -0.0, inf, -inf, std::numeric_limits<double>::quiet_NaN(), 5e-324};
  s.flags = cow_List<bool>{true, false, true};
  s.labels = cow_List<cow_String>{"", "[\"x\"]", "\x01\x1f", "\xF0\x9F\x98\x80"};
  s.regions = cow_List<rgnC_Region>{rgnC_Region("A"), rgnC_Region("")};
  s.modes = cow_List<ModeEnm>{ModeEnm::SECOND_MODE, ModeEnm::FIRST_MODE};
  dbtT_Detail outer(2.5, "outer");
  outer.SetInner(dbtT_Detail(-1.0, "inner"));
  s.detail = dbtT_Detail::Handle(outer);
  s.fixed = dbtT_Detail(7.0, "fixed");
  s.details = cow_List<dbtT_Detail::Handle>{dbtT_Detail::Handle(dbtT_Detail(1.0, "first")), dbtT_Detail::Handle(),
                                            dbtT_Detail::Handle(outer)};
  return s;
}

void dbtT_Start() {
  static bool started = [] {
    qmx_StartLibrary();
    auto& registrar = cls_ClassRegistrar::Instance();
    dbtT_Detail::InitializeMetadata(registrar);
    dbtT_Sample::InitializeMetadata(registrar);
    dbtT_SampleCont::InitializeMetadata(registrar);
    dbtT_SampleWrapper::InitializeMetadata(registrar);
    dbtT_SampleCont samples;
    ddr_Model::RegisterExtension(dbtT_SampleWrapper(samples));
    return true;
  }();
  (void)started;
}
