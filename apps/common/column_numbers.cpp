#include "apps/common/column_numbers.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "qorvex/base/detail/decimal_text.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/sorting.h"

namespace qorvex::apps {

namespace {

namespace decimal = QorvexGlobals::detail;

constexpr int kMostExactDecimals = 27;

template <class Number, std::size_t kCount>
constexpr auto kPowersOfTen = [] {
  std::array<Number, kCount> powers{1};
  for (std::size_t i = 1; i < kCount; ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

// Multiplies by 10^exponent. Returns false if 64 bits do not hold the product.
bool Shift(std::int64_t& integer, std::int64_t exponent) {
  constexpr auto& powers = kPowersOfTen<std::int64_t, 19>;
  if (integer == 0) return true;
  return std::cmp_less(exponent, powers.size()) &&
         !__builtin_mul_overflow(integer, powers[static_cast<std::size_t>(exponent)], &integer);
}

// The number that scan(unsigned text) finds.
template <class Scan>
[[gnu::always_inline]] inline std::optional<DecimalNumber> NumberOf(std::string_view text,
                                                                    Scan scan) {
  std::string_view number = decimal::WithoutBlanks(text);
  const bool negative = decimal::TakeSign(number);
  const decimal::DecimalText scanned = scan(number);
  if (!scanned.valid || !scanned.HasSignificand() ||
      scanned.significand > std::numeric_limits<std::int64_t>::max()) {
    return std::nullopt;
  }
  const auto integer = static_cast<std::int64_t>(scanned.significand);
  return DecimalNumber{negative ? -integer : integer, scanned.exponent};
}

}  // namespace

std::optional<DecimalNumber> ParseDecimal(std::string_view text) {
  return NumberOf(text, decimal::ScanDecimal);
}

bool ColumnNumbers::TryAppendCell(std::string_view text) {
  if (!are_decimal_) return false;
  const auto number = NumberOf(text, decimal::ScanExtendedDecimal);
  return number && TryAppend(*number);
}

bool ColumnNumbers::TryAppend(DecimalNumber number) {
  if (!are_decimal_) return false;
  if (number.exponent != -decimals_) {
    const std::int64_t needed =
        number.integer == 0 ? decimals_ : std::max<std::int64_t>(decimals_, -number.exponent);
    if (needed > kMostExactDecimals || !Shift(number.integer, number.exponent + needed) ||
        !Rescale(static_cast<int>(needed))) {
      return false;
    }
  }
  const auto bits = static_cast<std::uint64_t>(number.integer);
  largest_ = std::max(largest_, number.integer < 0 ? 0 - bits : bits);
  integers_.Append(number.integer);
  return true;
}

// Returns false, without any change, if an integer would not fit.
bool ColumnNumbers::Rescale(int decimals) {
  if (decimals == decimals_) return true;
  const int exponent = decimals - decimals_;
  auto largest = static_cast<std::int64_t>(largest_);
  if (largest < 0 || !Shift(largest, exponent)) return false;
  for (std::int64_t& integer : integers_) static_cast<void>(Shift(integer, exponent));
  largest_ = static_cast<std::uint64_t>(largest);
  decimals_ = decimals;
  return true;
}

void ColumnNumbers::MakeValues() {
  if (!are_decimal_) return;
  values_ = TakeValues();
  are_decimal_ = false;
  decimals_ = 0;
}

void ColumnNumbers::Append(Extended value) {
  MakeValues();
  values_.Append(value + 0);  // without the sign of a zero
}

void ColumnNumbers::Append(const ColumnNumbers& others) {
  const int decimals = std::max(decimals_, others.decimals_);
  auto largest = static_cast<std::int64_t>(others.largest_);
  const bool fit = are_decimal_ && others.are_decimal_ &&
                   (others.decimals_ == decimals ||
                    (largest >= 0 && Shift(largest, decimals - others.decimals_))) &&
                   Rescale(decimals);
  const std::size_t before = size();
  if (fit) {
    largest_ = std::max(largest_, static_cast<std::uint64_t>(largest));
    std::int64_t unit = 1;
    static_cast<void>(Shift(unit, decimals - others.decimals_));
    integers_.resize(before + others.size());
    std::ranges::transform(others.integers_, integers_.begin() + before,
                           [unit](std::int64_t integer) { return integer * unit; });
  } else {
    MakeValues();
    values_.resize(before + others.size());
    std::ranges::copy(others.Values(), values_.begin() + before);
  }
}

void ColumnNumbers::Reserve(std::size_t size) {
  if (are_decimal_) {
    integers_.reserve(size);
  } else {
    values_.reserve(size);
  }
}

void ColumnNumbers::Sort() {
  const auto sort = [](auto& vector) {
    if (vector.IsShared()) vector = CopyVector(vector);
    QSortVector(vector, true);
  };
  sort(integers_);
  sort(values_);
}

void ColumnNumbers::ShrinkToFit() {
  integers_.ShrinkToFit();
  values_.ShrinkToFit();
}

Extended ColumnNumbers::ValueOf(Extended units) const {
  return units /
         kPowersOfTen<Extended, kMostExactDecimals + 1>[static_cast<std::size_t>(decimals_)];
}

TQorFloatVector ColumnNumbers::Values() const {
  if (!are_decimal_) return values_;
  auto values = TQorFloatVector::ForOverwrite(integers_.size());
  std::ranges::transform(integers_, values.begin(), [this](std::int64_t integer) {
    return ValueOf(static_cast<Extended>(integer));
  });
  return values;
}

TQorFloatVector ColumnNumbers::TakeValues() {
  TQorFloatVector values = Values();
  integers_ = {};
  values_ = {};
  return values;
}

}  // namespace qorvex::apps
