#include "qorvex/stats/regression/detail/polynomial_sums.h"

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/detail/parts.h"

namespace qorvex::regression {

using exact::Dyadic;
using exact::detail::Elements;
using exact::detail::kExponentBias;
using exact::detail::Parts;
using exact::detail::Word;

namespace {

// By reference, because an extended value that was just stored is slow to read as integers.
Parts<1> FinitePartsOf(const Extended& value) {
  const Parts<1> parts = Elements<Extended>::Of(value);
  if (parts.Exponent() > Elements<Extended>::kGreatest) throw EInvalidOp();
  return parts;
}

void AddTo(exact::FixedPoint& total, std::span<const Word> magnitude, std::int64_t exponent,
           bool negative) {
  total.Add(std::vector<std::uint64_t>(magnitude.begin(), magnitude.end()), exponent, negative);
}

}  // namespace

void WordProduct::Set(const Extended& value) {
  const Parts<1> parts = FinitePartsOf(value);
  words.assign(1, parts.mantissa[0]);
  exponent = std::int64_t{parts.Exponent()} - kExponentBias;
  negative = parts.Sign() != 0;
}

void WordProduct::SetProduct(const WordProduct& a, const Extended& factor) {
  __extension__ using Wide = unsigned __int128;
  const Parts<1> parts = FinitePartsOf(factor);
  words.resize(a.words.size() + 1);
  Word high = 0;
  for (std::size_t i = 0; i < a.words.size(); ++i) {
    const Wide product = Wide{a.words[i]} * parts.mantissa[0] + high;
    words[i] = static_cast<Word>(product);
    high = static_cast<Word>(product >> 64U);
  }
  words.back() = high;
  exponent = a.exponent + parts.Exponent() - kExponentBias;
  negative = a.negative != (parts.Sign() != 0);
}

void WordSum::Add(const WordProduct& product) {
  if (few_ < kFew) {
    ++few_;
    AddTo(outside_, product.words, product.exponent, product.negative);
    return;
  }
  if (counters_.empty()) {
    // Smaller values have smaller exponents, so most of the table is for these.
    lowest_ = product.exponent - static_cast<std::int64_t>(kExponents * 3 / 4);
    counters_.resize(2 * kExponents * stride_);
  }
  const auto index = static_cast<std::uint64_t>(product.exponent - lowest_);
  if (index >= kExponents) {
    AddTo(outside_, product.words, product.exponent, product.negative);
    return;
  }
  Word* const counter = &counters_[(2 * index + (product.negative ? 1 : 0)) * stride_];
  unsigned char carry = 0;
  std::size_t i = 0;
  for (const Word word : product.words) {
    carry = _addcarry_u64(carry, counter[i], word, &counter[i]);
    ++i;
  }
  counter[i] += carry;
}

Dyadic WordSum::Value() const {
  exact::FixedPoint total = outside_;
  for (std::uint64_t i = 0; i * stride_ < counters_.size(); ++i) {
    AddTo(total, std::span(counters_).subspan(i * stride_, stride_),
          lowest_ + static_cast<std::int64_t>(i / 2), i % 2 == 1);
  }
  return total.Value();
}

PolynomialSums::PolynomialSums(std::size_t degree) : degree_(degree) {
  // Every factor of a product has a word, the weight 1 too.
  for (std::size_t power = 0; power <= 2 * degree; ++power) sums_.emplace_back(power + 1);
  for (std::size_t power = 0; power <= degree; ++power) sums_.emplace_back(power + 2);
  sums_.emplace_back(3U);
}

void PolynomialSums::Add(std::span<const Extended> x, std::span<const Extended> y,
                         std::span<const Extended> w) {
  constexpr Extended one = 1;
  WordProduct powers[2];  // by turns
  WordProduct with_response, with_square;
  for (std::size_t i = 0; i < x.size(); ++i) {
    powers[0].Set(w.empty() ? one : w[i]);
    for (std::size_t k = 0; k <= 2 * degree_; ++k) {
      const WordProduct& power = powers[k % 2];
      sums_[k].Add(power);
      if (k <= degree_) {
        with_response.SetProduct(power, y[i]);
        sums_[ResponseSlot(degree_, k)].Add(with_response);
      }
      if (k == 0) {
        with_square.SetProduct(with_response, y[i]);
        sums_[ResponseSlot(degree_, degree_ + 1)].Add(with_square);
      }
      powers[(k + 1) % 2].SetProduct(power, x[i]);
    }
  }
}

std::vector<Dyadic> PolynomialSums::Values() const {
  std::vector<Dyadic> values;
  for (const WordSum& sum : sums_) values.push_back(sum.Value());
  return values;
}

}  // namespace qorvex::regression
