#pragma once

/// @file
/// Columns of data of any element type, and decimal data, as the routines of regression take them.

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <type_traits>
#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/decimals.h"

namespace qorvex {

/// A contiguous range of a numeric element type or a currency.
template <class Range>
concept NumberRange = ContiguousRange<Range> && AnyElement<ElementOf<Range>>;

/// A read-only view of a column of numbers, which it does not copy.
///
/// - Converts implicitly from every contiguous range of a numeric element type or a currency, and
///   from extended values in braces.
/// - Decimal data are integers with a number of decimals: value = integer * 10^-decimals. Results
///   are then those of the decimal numbers, most of which no binary format can hold. Amounts are
///   such data.
/// - Meant for parameters: the elements must outlive the view.
class QORVEX_EXPORT ColumnView {
 public:
  /// The elements of a range. Amounts count as decimal data.
  template <NumberRange Range>
  ColumnView(const Range& values)  // NOLINT: a view
      : ColumnView(std::ranges::data(values), std::ranges::size(values)) {}
  /// The values in braces.
  ColumnView(std::initializer_list<Extended> values) : ColumnView(values.begin(), values.size()) {}
  /// integers[i] * 10^-decimals. EMathError rsInvalidValue unless 0 <= decimals <= kMaxDecimals.
  ColumnView(VectorView<std::int64_t> integers, int decimals);

  /// The number of elements.
  [[nodiscard]] std::size_t Size() const { return size_; }
  /// The decimals of decimal data, otherwise 0.
  [[nodiscard]] int Decimals() const { return decimals_; }
  /// `count` elements from `first` on, times 10^Decimals(), exactly. They are in `buffer`, unless
  /// they are stored as extended numbers.
  [[nodiscard]] std::span<const Extended> Read(std::size_t first, std::size_t count,
                                               std::vector<Extended>& buffer) const;

 private:
  using Reader = void (*)(const void* data, std::size_t first, std::span<Extended> out);

  template <class T>
  ColumnView(const T* data, std::size_t size) : data_(data), size_(size), read_(&ReadAs<T>) {
    if constexpr (CurrencyElement<T>) decimals_ = T::kDecimals;
    if constexpr (std::same_as<T, Extended>) read_ = nullptr;
  }

  template <class T>
  static void ReadAs(const void* data, std::size_t first, std::span<Extended> out) {
    const T* next = static_cast<const T*>(data) + first;
    for (Extended& value : out) {
      if constexpr (CurrencyElement<T>) {
        value = static_cast<Extended>((next++)->stored());
      } else {
        value = static_cast<Extended>(*next++);
      }
    }
  }

  const void* data_;
  std::size_t size_;
  Reader read_;  // null for extended elements
  int decimals_ = 0;
};

/// A range of numbers or amounts, or another object that converts to a column.
template <class T>
concept ColumnSource = std::convertible_to<const T&, ColumnView>;

/// A range of columns.
template <class Range>
concept ColumnRange = ContiguousRange<Range> && ColumnSource<ElementOf<Range>>;

/// Several columns: one range of numbers, a list in braces such as {height, weight} or {{1.0L, 2},
/// {3.0L, 4}}, or a range of ColumnView or of ranges of numbers.
///
/// - Meant for parameters: the elements must outlive it.
class Columns {
 public:
  /// No columns.
  Columns() = default;
  /// One column.
  template <ColumnSource Column>
  Columns(const Column& column) : views_{ColumnView(column)} {}  // NOLINT: a view
  /// The columns in braces.
  Columns(std::initializer_list<ColumnView> columns) : views_(columns) {}
  /// The columns of a range.
  template <ColumnRange Range>
  Columns(const Range& columns)  // NOLINT: a view
      : views_(std::ranges::begin(columns), std::ranges::end(columns)) {}

  /// The number of columns.
  [[nodiscard]] std::size_t Size() const { return views_.size(); }
  /// A column.
  [[nodiscard]] const ColumnView& operator[](std::size_t i) const { return views_[i]; }
  /// @{
  /// All columns.
  [[nodiscard]] auto begin() const { return views_.begin(); }
  [[nodiscard]] auto end() const { return views_.end(); }
  /// @}

 private:
  std::vector<ColumnView> views_;
};

}  // namespace qorvex
