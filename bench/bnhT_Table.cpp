#include "bench/bnhT_Table.h"

#include "frame/QMXOdbAttrEO2.h"
#include "framework/fw_FieldTable.h"
#include "platform/model/ddr_Model.h"

bnhT_Table::bnhT_Table(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void bnhT_Table::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bnhT_Table* bnhT_Table::Copy() const { return new bnhT_Table(*this); }
bool bnhT_Table::operator==(const bnhT_Table& o) const { return fw_EqualFields(*this, o); }
void bnhT_Table::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<bnhT_Table>(r); }
void bnhT_Table::CowDtor(void* p) { fw_CowDtor<bnhT_Table>(p); }

void bnhT_Start() {
  static bool started = [] {
    static int tally = 0;
    if (QMXOdbAttrEO2_libraryCount() == 0) QMXOdbAttrEO2_initialize(tally);
    auto& registrar = cls_ClassRegistrar::Instance();
    bnhT_Table::InitializeMetadata(registrar);
    bnhT_TableCont::InitializeMetadata(registrar);
    bnhT_TableWrapper::InitializeMetadata(registrar);
    bnhT_TableCont tables;
    ddr_Model::RegisterExtension(bnhT_TableWrapper(tables));
    return true;
  }();
  (void)started;
}
