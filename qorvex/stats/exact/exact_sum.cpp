#include "qorvex/stats/exact/exact_sum.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/detail/block_sum.h"
#include "qorvex/stats/exact/detail/integer_sums.h"
#include "qorvex/stats/exact/detail/windowed_sum.h"

namespace qorvex {

using namespace exact::detail;

template <class T, std::size_t kFactors>
void ExactSum::AddTerms(const std::array<const T*, kFactors>& factors, std::size_t count) {
  const Products<T, kFactors> products(factors);
  for (std::size_t i = 0; i < count && zero_ != Zero::kPositive; ++i) {
    const Extended kind = products.Kind(i);
    zero_ = kind == 0 && std::signbit(kind) ? Zero::kNegative : Zero::kPositive;
  }
  constexpr std::size_t kFew = 16;
  if (count <= kFew) {
    for (std::size_t i = 0; i < count; ++i) {
      if (!products.IsFinite(i)) {
        special_.Add(products.Kind(i));
        continue;
      }
      const auto x = products(i);
      Lane<kFactors, 1, true>::AddToTotal(x.mantissa, x.Exponent(), x.Sign() != 0, total_);
    }
  } else if constexpr (kFactors == 1 && IntegerElement<T>) {
    AddIntegerPowers<1, T>(std::span(factors[0], count), &total_);
  } else {
    WindowedSum<ProductLanes<kFactors>> sum(&total_);
    [[maybe_unused]] BlockSum<T> blocks(total_);
    for (std::size_t begin = 0; begin < count; begin += BlockSum<T>::kBlock) {
      const std::size_t end = std::min(begin + BlockSum<T>::kBlock, count);
      if constexpr (kFactors == 1) {
        if (blocks.Add(std::span(factors[0] + begin, end - begin))) continue;
      }
      sum.Add(products, begin, end, special_);
    }
    if constexpr (kFactors == 1) blocks.Flush();
    sum.Flush();
  }
}

void ExactSum::Add(Extended x) {
  AddTerms<Extended, 1>({&x}, 1);
}

void ExactSum::AddProduct(Extended x, Extended y) {
  AddTerms<Extended, 2>({&x, &y}, 1);
}

void ExactSum::AddProduct(Extended x, Extended y, Extended z) {
  AddTerms<Extended, 3>({&x, &y, &z}, 1);
}

template <NumericElement T>
void ExactSum::Add(VectorView<T> values) {
  AddTerms<T, 1>({values.data()}, values.size());
}

template <NumericElement T>
void ExactSum::AddProduct(VectorView<T> x, VectorView<T> y) {
  if (x.size() != y.size()) RaiseMathError(rsSameDimensions);
  AddTerms<T, 2>({x.data(), y.data()}, x.size());
}

template <NumericElement T>
void ExactSum::AddProduct(VectorView<T> x, VectorView<T> y, VectorView<T> z) {
  if (x.size() != y.size() || x.size() != z.size()) RaiseMathError(rsSameDimensions);
  AddTerms<T, 3>({x.data(), y.data(), z.data()}, x.size());
}

void ExactSum::Merge(const ExactSum& other) {
  total_ += other.total_;
  special_ += other.special_;
  if (other.zero_ != Zero::kOfNothing) zero_ = std::max(zero_, other.zero_);
}

void ExactSum::Remove(const ExactSum& other) {
  if (!special_.Contains(other.special_)) RaiseMathError(rsInvalidValue);
  total_ -= other.total_;
  special_ -= other.special_;
  zero_ = Zero::kPositive;
}

Extended ExactSum::Round() const {
  if (special_.Any()) return special_.Sum();
  if (total_.Sign() == 0) return zero_ == Zero::kNegative ? -0.0L : 0.0L;
  return total_.Value().Round();
}

#define QORVEX_INSTANTIATE(T)                                                     \
  template QORVEX_EXPORT void ExactSum::Add(VectorView<T>);                       \
  template QORVEX_EXPORT void ExactSum::AddProduct(VectorView<T>, VectorView<T>); \
  template QORVEX_EXPORT void ExactSum::AddProduct(VectorView<T>, VectorView<T>, VectorView<T>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex
