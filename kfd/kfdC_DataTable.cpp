#include "kfd/kfdC_DataTable.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kfd/kfdC_assert.h"

kfdC_DataTable::kfdC_DataTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void kfdC_DataTable::AssertValid() const {
  kfdC_Assert(dataWidth >= 1, kfdC_InvalidWidth);
  kfdC_Assert(data.size() % static_cast<std::size_t>(dataWidth) == 0, kfdC_DataNotDivisibleByWidth);
  kfdC_Assert(data.size() == static_cast<std::size_t>(dataWidth) * domain.size(), kfdC_DataLengthMismatch);
}

bool kfdC_DataTable::HasInstanceInformation() const {
  for (const cow_String& label : domain)
    if (label.view().find('.') != std::string_view::npos) return true;
  return false;
}

void kfdC_DataTable::AddRow(const cow_String& label, const cow_List<double>& values) {
  kfdC_Assert(dataWidth >= 1, kfdC_InvalidWidth);
  kfdC_Assert(values.size() == static_cast<std::size_t>(dataWidth), kfdC_InvalidRowWidth);
  std::vector<cow_String> labels(domain.begin(), domain.end());
  std::vector<double> all(data.begin(), data.end());
  labels.push_back(label);
  all.insert(all.end(), values.begin(), values.end());
  domain = cow_List<cow_String>(std::move(labels));
  data = cow_List<double>(std::move(all));
}

template class fw_PersistentClass<kfdC_DataTable, mem_Allocated>;
