#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "qorvex/stats/exact/detail/dense_chunks.h"
#include "qorvex/stats/exact/detail/parts.h"
#include "qorvex/stats/exact/detail/words.h"
#include "qorvex/stats/exact/fixed_point.h"

namespace qorvex::exact::detail {

// The exponents that a table has counters for.
inline constexpr std::uint32_t kWindow = 128;

// One sum of terms with kSize words. A term with the exponent e weighs
// 2^(kStep e - kSize kExponentBias): for products e is the sum of the exponents and kStep is 1, for
// powers e is the exponent of the value and kStep the power.
//
// Terms within a window of exponents go to a table with one counter for each exponent and sign,
// where adding needs neither shift nor carry nor branch. A few others are added to the total, many
// to dense chunks.
template <std::size_t kSize, int kStep, bool kSigned>
class Lane {
 public:
  explicit Lane(FixedPoint& total) : total_(total) {}

  template <std::size_t kWords>
  static void AddToTotal(const Words<kWords>& term, std::uint32_t exponent, bool negative,
                         FixedPoint& total) {
    std::array<std::uint64_t, kWords> magnitude;
    for (std::size_t i = 0; i < kWords; ++i) magnitude[i] = term[i];
    total.Add(magnitude,
              std::int64_t{kStep} * exponent - static_cast<std::int64_t>(kSize) * kExponentBias,
              negative);
  }

  // index: twice the number of the exponent in the window, plus the sign. Values take turns at two
  // tables, so that one with the exponent of the last need not wait for it.
  template <int kTurn>
  void Count(const Words<kSize>& term, std::uint32_t index) noexcept {
    tables_[kTurn][kSigned ? index : index / 2].Add(term);
  }

  // key: twice the exponent, plus the sign.
  void AddOne(const Words<kSize>& term, std::uint32_t key) {
    AddToTotal(term, key / 2, kSigned && key % 2 != 0, total_);
  }
  // After PrepareForScattered, for as many terms.
  void AddScattered(const Words<kSize>& term, std::uint32_t key) noexcept {
    chunks_->Add(term, kStep * (key / 2), kSigned ? key % 2 : 0);
  }
  void PrepareForScattered(std::size_t count) {
    if (!chunks_) chunks_ = std::make_unique<DenseChunks<kSize>>();
    chunks_->Prepare(count, total_);
  }

  // Adds the counters to the total. The first has the given exponent.
  void FlushCounters(std::uint32_t first) {
    for (Table& table : tables_) {
      for (std::uint32_t i = 0; i < table.size(); ++i) {
        if (table[i].IsZero()) continue;
        AddToTotal(table[i].words, first + (kSigned ? i / 2 : i), kSigned && i % 2 == 1, total_);
        table[i] = {};
      }
    }
  }

  void FlushChunks() {
    if (chunks_) chunks_->Flush(total_);
  }

 private:
  using Table = std::array<Counter<kSize>, kWindow*(kSigned ? 2 : 1)>;

  FixedPoint& total_;
  std::array<Table, 2> tables_;
  std::unique_ptr<DenseChunks<kSize>> chunks_;
};

// The sum of products of kFactors numbers.
template <std::size_t kFactors>
class ProductLanes {
 public:
  explicit ProductLanes(FixedPoint* total) : product_(*total) {}

  // Calls action(lane, term) for every sum that a value contributes to.
  template <class Action>
  void ForEachTerm(const Words<kFactors>& mantissa, Action action) {
    action(product_, mantissa);
  }
  template <class Action>
  void ForEach(Action action) {
    action(product_);
  }

 private:
  Lane<kFactors, 1, true> product_;
};

// The sums of the first two or four powers.
template <int kPowerSums>
class PowerLanes {
 public:
  explicit PowerLanes(FixedPoint* totals) : first_(totals[0]), second_(totals[1]) {}

  // Adds a value without lanes.
  static void AddToTotals(const Parts<1>& x, FixedPoint* totals) {
    Lane<1, 1, true>::AddToTotal(x.mantissa, x.Exponent(), x.Sign() != 0, totals[0]);
    Lane<2, 2, false>::AddToTotal(Square(x.mantissa), x.Exponent(), false, totals[1]);
  }

  template <class Action>
  void ForEachTerm(const Words<1>& mantissa, Action action) {
    action(first_, mantissa);
    action(second_, Square(mantissa));
  }
  template <class Action>
  void ForEach(Action action) {
    action(first_);
    action(second_);
  }

 private:
  Lane<1, 1, true> first_;
  Lane<2, 2, false> second_;
};

template <>
class PowerLanes<4> {
 public:
  explicit PowerLanes(FixedPoint* totals)
      : first_(totals[0]), second_(totals[1]), third_(totals[2]), fourth_(totals[3]) {}

  static void AddToTotals(const Parts<1>& x, FixedPoint* totals) {
    const Words<3> cube = Multiply(Square(x.mantissa), x.mantissa[0]);
    PowerLanes<2>::AddToTotals(x, totals);
    Lane<3, 3, true>::AddToTotal(cube, x.Exponent(), x.Sign() != 0, totals[2]);
    Lane<4, 4, false>::AddToTotal(Multiply(cube, x.mantissa[0]), x.Exponent(), false, totals[3]);
  }

  template <class Action>
  void ForEachTerm(const Words<1>& mantissa, Action action) {
    const Words<2> square = Square(mantissa);
    const Words<3> cube = Multiply(square, mantissa[0]);
    action(first_, mantissa);
    action(second_, square);
    action(third_, cube);
    action(fourth_, Multiply(cube, mantissa[0]));
  }
  template <class Action>
  void ForEach(Action action) {
    action(first_);
    action(second_);
    action(third_);
    action(fourth_);
  }

 private:
  Lane<1, 1, true> first_;
  Lane<2, 2, false> second_;
  Lane<3, 3, true> third_;
  Lane<4, 4, false> fourth_;
};

}  // namespace qorvex::exact::detail
