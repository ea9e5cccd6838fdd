#include "qorvex/stats/exact/exact_sample.h"

#include <algorithm>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/detail/extremes.h"
#include "qorvex/stats/exact/detail/integer_sums.h"
#include "qorvex/stats/exact/detail/windowed_sum.h"
#include "qorvex/vector/detail/extreme_values.h"

namespace qorvex {

namespace {

using exact::BigInteger;
using exact::Dyadic;
using exact::FixedPoint;
using exact::Rational;
using namespace exact::detail;

// 10^decimals.
Dyadic TenToThe(int decimals) {
  return Dyadic(BigInteger::PowerOfTen(static_cast<unsigned>(decimals)));
}

// Zeros of both signs are equal, so which one came first must not matter.
Extended WithoutSignOfZero(Extended x) noexcept {
  return x + 0.0L;
}

}  // namespace

template <int kPowerSums>
template <AnyElement T>
void ExactSample<kPowerSums>::Add(VectorView<T> values) {
  if constexpr (CurrencyElement<T>) {
    AddIntegers(values, T::kDecimals);
  } else if constexpr (IntegerElement<T>) {
    AddIntegers(values, 0);
  } else {
    if (decimals_ != 0) {
      ExactSample part;
      part.Add(values);
      return Merge(part);
    }
    const std::int64_t special = special_.Total();
    constexpr std::size_t kFew = 16;
    Extremes<T> extremes;
    if (values.size() <= kFew) {
      for (const T& x : values) {
        if (Elements<T>::IsFinite(x)) {
          PowerLanes<kPowerSums>::AddToTotals(Elements<T>::Of(x), sums_.data());
        } else {
          special_.Add(x);
        }
      }
      extremes.Add(values);
    } else {
      using Sum = WindowedSum<PowerLanes<kPowerSums>>;
      Sum sum(sums_.data());
      for (std::size_t begin = 0; begin < values.size(); begin += Sum::kBlock) {
        const std::size_t end = std::min(begin + Sum::kBlock, values.size());
        sum.Add(Products<T, 1>({values.data()}), begin, end, special_);
        extremes.Add(values.subspan(begin, end - begin));
      }
      sum.Flush();
    }
    CountValues(values.size() - static_cast<std::uint64_t>(special_.Total() - special),
                WithoutSignOfZero(extremes.Least()), WithoutSignOfZero(extremes.Greatest()));
  }
}

template <int kPowerSums>
void ExactSample<kPowerSums>::AddScaled(VectorView<std::int64_t> values, int decimals) {
  if (decimals < 0 || decimals > kMaxDecimals) RaiseMathError(rsInvalidValue);
  AddIntegers(values, decimals);
}

template <int kPowerSums>
template <class T>
void ExactSample<kPowerSums>::AddIntegers(VectorView<T> values, int decimals) {
  if (values.empty()) return;
  ExactSample part;
  part.decimals_ = decimals;
  part.finite_ = values.size();
  AddIntegerPowers<kPowerSums>(values, part.sums_.data());
  const auto [smallest, largest] =
      QorvexVector::detail::ExtremesOf(QorvexVector::detail::Numbers(values));
  const Dyadic unit = TenToThe(decimals);
  part.minimum_ = Rational(smallest.value, unit).Round();
  part.maximum_ = Rational(largest.value, unit).Round();
  Merge(part);
}

template <int kPowerSums>
void ExactSample<kPowerSums>::Refine(int decimals) {
  if (finite_ > 0 && decimals > decimals_) {
    Dyadic factor = 1;
    const Dyadic step = TenToThe(decimals - decimals_);
    for (FixedPoint& sum : sums_) {
      factor *= step;
      sum = FixedPoint(sum.Value() * factor);
    }
  }
  decimals_ = decimals;
}

template <int kPowerSums>
void ExactSample<kPowerSums>::Merge(const ExactSample& other) {
  if (finite_ > 0 && other.finite_ > 0 && decimals_ > other.decimals_) {
    ExactSample refined = other;
    refined.Refine(decimals_);
    return Merge(refined);
  }
  ExactSample merged = *this;
  merged.special_ += other.special_;
  if (other.finite_ > 0) {
    merged.Refine(other.decimals_);
    for (std::size_t k = 0; k < sums_.size(); ++k) merged.sums_[k] += other.sums_[k];
    merged.CountValues(other.finite_, other.minimum_, other.maximum_);
  }
  *this = std::move(merged);
}

template <int kPowerSums>
void ExactSample<kPowerSums>::CountValues(std::uint64_t finite,
                                          const std::optional<Extended>& minimum,
                                          const std::optional<Extended>& maximum) {
  if (finite == 0) return;
  if (finite_ == 0) {
    minimum_ = minimum;
    maximum_ = maximum;
  }
  if (!minimum) minimum_.reset();
  if (!maximum) maximum_.reset();
  if (minimum_ && *minimum < *minimum_) *minimum_ = *minimum;
  if (maximum_ && *maximum > *maximum_) *maximum_ = *maximum;
  finite_ += finite;
}

template <int kPowerSums>
void ExactSample<kPowerSums>::Remove(const ExactSample& other) {
  if (other.finite_ > finite_ || !special_.Contains(other.special_)) {
    RaiseMathError(rsInvalidValue);
  }
  ExactSample rest = *this;
  rest.special_ -= other.special_;
  if (other.finite_ > 0) {
    ExactSample part = other;
    const int decimals = std::max(decimals_, part.decimals_);
    rest.Refine(decimals);
    part.Refine(decimals);
    for (std::size_t k = 0; k < sums_.size(); ++k) rest.sums_[k] -= part.sums_[k];
    rest.finite_ -= part.finite_;
    if (!(minimum_ && part.minimum_ && *minimum_ < *part.minimum_)) rest.minimum_.reset();
    if (!(maximum_ && part.maximum_ && *maximum_ > *part.maximum_)) rest.maximum_.reset();
    if (rest.finite_ == 0) {
      rest.sums_ = Sums();
      rest.decimals_ = 0;
    }
  }
  *this = std::move(rest);
}

template <int kPowerSums>
ExactSample<kPowerSums> ExactSample<kPowerSums>::Canonical() const {
  ExactSample canonical = *this;
  if (finite_ == 0) canonical.decimals_ = 0;
  // In a unit ten times as large, the k-th sum is 10^k times smaller.
  while (canonical.decimals_ > 0) {
    Sums sums;
    BigInteger divisor = 1;
    for (std::size_t k = 0; k < sums.size(); ++k) {
      divisor *= BigInteger(5);
      const Dyadic sum = canonical.sums_[k].Value();
      const auto [quotient, remainder] = Divide(sum.Mantissa(), divisor);
      if (remainder.Sign() != 0) return canonical;
      sums[k] = FixedPoint(Dyadic(quotient, sum.Exponent() - static_cast<std::int64_t>(k + 1)));
    }
    canonical.sums_ = std::move(sums);
    --canonical.decimals_;
  }
  return canonical;
}

template <int kPowerSums>
bool ExactSample<kPowerSums>::IsEqual(const ExactSample& other) const {
  const ExactSample a = Canonical();
  const ExactSample b = other.Canonical();
  return a.finite_ == b.finite_ && a.special_ == b.special_ && a.decimals_ == b.decimals_ &&
         a.minimum_ == b.minimum_ && a.maximum_ == b.maximum_ && a.sums_ == b.sums_;
}

template class ExactSample<2>;
template class ExactSample<4>;

#define QORVEX_INSTANTIATE(T)                       \
  template void ExactSample<2>::Add(VectorView<T>); \
  template void ExactSample<4>::Add(VectorView<T>);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex
