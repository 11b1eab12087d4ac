#include "kma/kmaC_MaterialTable.h"

#include <algorithm>
#include <vector>

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_MaterialTable::kmaC_MaterialTable(int rows, int columns)
    : table(static_cast<std::size_t>(rows < 0 ? 0 : rows), static_cast<std::size_t>(columns < 0 ? 0 : columns), 0.0) {}
kmaC_MaterialTable::kmaC_MaterialTable(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

void kmaC_MaterialTable::AssertValid() const {
  const std::size_t rows = table.Rows(), cols = table.Columns();
  if (cols == 0) return;
  for (std::size_t r = 0; r < rows; ++r) {
    bool filled = false;
    for (std::size_t c = 0; c < cols && !filled; ++c) filled = table(r, c) != 0.0;
    kmaC_Assert(filled || (r == 0 && allowEmptyFirstRow), kmaC_BlankOrZeroRow);
  }
}

void kmaC_MaterialTable::Sort(int keyColumns) {
  if (keyColumns <= 0) return;
  const std::size_t rows = table.Rows(), cols = table.Columns();
  const std::size_t keys = std::min(static_cast<std::size_t>(keyColumns), cols);
  // Row a comes before row b when, from the last column backwards, the first differing key is smaller.
  auto before = [&](const std::vector<double>& data, std::size_t a, std::size_t b) {
    for (std::size_t k = 0; k < keys; ++k) {
      const std::size_t c = cols - 1 - k;
      if (data[a * cols + c] != data[b * cols + c]) return data[a * cols + c] < data[b * cols + c];
    }
    return false;
  };
  std::vector<double> data(table.Data(), table.Data() + rows * cols);
  std::vector<double> row(cols);
  // Stable insertion sort over rows on a copy, which then replaces the table.
  for (std::size_t i = 1; i < rows; ++i) {
    std::copy(data.begin() + i * cols, data.begin() + (i + 1) * cols, row.begin());
    std::size_t j = i;
    data.insert(data.end(), row.begin(), row.end());  // scratch slot for comparisons
    const std::size_t scratch = rows;
    while (j > 0 && before(data, scratch, j - 1)) {
      std::copy(data.begin() + (j - 1) * cols, data.begin() + j * cols, data.begin() + j * cols);
      --j;
    }
    std::copy(row.begin(), row.end(), data.begin() + j * cols);
    data.resize(rows * cols);
  }
  table = cow_2DArray<double>(rows, cols, std::move(data));
}

template class fw_PersistentClass<kmaC_MaterialTable, mem_Allocated>;
