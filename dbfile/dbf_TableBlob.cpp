#include "dbfile/dbf_TableBlob.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/base/nex_Exception.h"

namespace {
void Put32(std::string& out, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) out += static_cast<char>((v >> (8 * i)) & 0xff);
}
std::uint32_t Get32(const unsigned char* p) {
  return std::uint32_t(p[0]) | (std::uint32_t(p[1]) << 8) | (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[3]) << 24);
}
}  // namespace

void dbf_EncodeTable(const cow_2DArray<double>& table, std::string& out) {
  const std::size_t rows = table.Rows(), cols = table.Columns();
  if (rows > UINT32_MAX || cols > UINT32_MAX)
    nex_ThrowCmd(std::string("a table of ") + std::to_string(rows) + " by " + std::to_string(cols) + " values is too large to store");
  out.clear();
  out.reserve(8 + 8 * rows * cols);
  Put32(out, static_cast<std::uint32_t>(rows));
  Put32(out, static_cast<std::uint32_t>(cols));
  const std::size_t n = rows * cols;
  if (n == 0) return;
  const double* data = table.Data();
  if constexpr (std::endian::native == std::endian::little) {
    out.append(reinterpret_cast<const char*>(data), n * sizeof(double));
  } else {
    for (std::size_t i = 0; i < n; ++i) {
      std::uint64_t bits = std::bit_cast<std::uint64_t>(data[i]);
      for (int b = 0; b < 8; ++b) out += static_cast<char>((bits >> (8 * b)) & 0xff);
    }
  }
}

bool dbf_DecodeTable(const void* data, std::size_t size, cow_2DArray<double>& out) {
  if (size < 8) return false;
  const auto* p = static_cast<const unsigned char*>(data);
  const std::uint64_t rows = Get32(p), cols = Get32(p + 4);
  const std::uint64_t body = size - 8;
  if (body % 8 != 0) return false;
  const std::uint64_t n = body / 8;
  // rows * cols == n, without overflow: a row count > 0 must divide n exactly.
  if (rows == 0 || cols == 0) {
    if (n != 0) return false;
  } else if (n % rows != 0 || n / rows != cols) {
    return false;
  }
  std::vector<double> values(n);
  if constexpr (std::endian::native == std::endian::little) {
    if (n) std::memcpy(values.data(), p + 8, n * sizeof(double));
  } else {
    for (std::uint64_t i = 0; i < n; ++i) {
      std::uint64_t bits = 0;
      for (int b = 0; b < 8; ++b) bits |= std::uint64_t(p[8 + 8 * i + b]) << (8 * b);
      values[i] = std::bit_cast<double>(bits);
    }
  }
  out = cow_2DArray<double>(rows, cols, std::move(values));
  return true;
}
