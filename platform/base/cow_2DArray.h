#pragma once
// A copy-on-write rows-by-columns table, stored row by row.
#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "platform/base/cow_Box.h"

template <class T>
class cow_2DArray {
 public:
  cow_2DArray() = default;
  cow_2DArray(std::size_t rows, std::size_t columns, const T& fill = T())
      : rows_(rows), cols_(columns), box_(std::vector<T>(rows * columns, fill)) {}
  // Rows of equal length; a ragged table is refused.
  cow_2DArray(std::initializer_list<std::initializer_list<T>> rows) {
    std::vector<T> data;
    std::size_t cols = rows.size() ? rows.begin()->size() : 0;
    for (const auto& r : rows) {
      if (r.size() != cols) throw std::invalid_argument("cow_2DArray: rows of different lengths");
      data.insert(data.end(), r.begin(), r.end());
    }
    rows_ = rows.size();
    cols_ = cols;
    box_ = cow_Box<std::vector<T>>(std::move(data));
  }
  cow_2DArray(std::size_t rows, std::size_t columns, std::vector<T> data) : rows_(rows), cols_(columns) {
    if (data.size() != rows * columns) throw std::invalid_argument("cow_2DArray: data does not fill the table");
    box_ = cow_Box<std::vector<T>>(std::move(data));
  }

  std::size_t Rows() const noexcept { return rows_; }
  std::size_t Columns() const noexcept { return cols_; }
  bool empty() const noexcept { return rows_ * cols_ == 0; }
  const T& operator()(std::size_t r, std::size_t c) const { return Data()[r * cols_ + c]; }
  T& operator()(std::size_t r, std::size_t c) { return box_.Mutable()[r * cols_ + c]; }
  const T* Data() const noexcept { return box_.IsNull() ? nullptr : box_.Get().data(); }
  bool SharesBodyWith(const cow_2DArray& o) const noexcept { return !box_.IsNull() && box_.SharesBodyWith(o.box_); }

  friend bool operator==(const cow_2DArray& a, const cow_2DArray& b) {
    if (a.rows_ != b.rows_ || a.cols_ != b.cols_) return false;
    if (a.box_.IsNull() || b.box_.IsNull() || a.box_.SharesBodyWith(b.box_)) return true;
    if constexpr (std::is_floating_point_v<T>) {
      // A table keeps a NaN cell (files store every bit): a table must equal its own copy, so a
      // NaN equals a NaN here.
      const std::vector<T>& x = a.box_.Get();
      const std::vector<T>& y = b.box_.Get();
      for (std::size_t i = 0; i < x.size(); ++i)
        if (!(x[i] == y[i] || (x[i] != x[i] && y[i] != y[i]))) return false;
      return true;
    } else {
      return a.box_.Get() == b.box_.Get();
    }
  }
  friend bool operator!=(const cow_2DArray& a, const cow_2DArray& b) { return !(a == b); }

 private:
  std::size_t rows_ = 0;
  std::size_t cols_ = 0;
  cow_Box<std::vector<T>> box_;
};
