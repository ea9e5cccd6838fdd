#include "qorvex/stats/regression/detail/power_sums.h"

namespace qorvex::detail {

using exact::Dyadic;

PowerSums::PowerSums(std::size_t degree)
    : degree_(degree), sums_(ResponseSlot(degree, degree + 1) + 1) {}

// A factor has one word, or none if it is 0.
void PowerSums::Product::operator*=(const Dyadic& factor) {
  __extension__ using Wide = unsigned __int128;
  if (factor.Sign() == 0) words.clear();
  if (words.empty()) return;
  const std::uint64_t word = factor.Mantissa().Magnitude().front();
  std::uint64_t carry = 0;
  for (std::uint64_t& digit : words) {
    const Wide product = Wide{digit} * word + carry;
    digit = static_cast<std::uint64_t>(product);
    carry = static_cast<std::uint64_t>(product >> 64U);
  }
  if (carry != 0) words.push_back(carry);
  exponent += factor.Exponent();
  negative ^= factor.Sign() < 0;
}

void PowerSums::AddTo(std::size_t slot, const Product& product) {
  sums_[slot].Add(product.words, product.exponent, product.negative);
}

void PowerSums::Add(Extended x, Extended y, Extended w) {
  const Dyadic factor(x);
  const Dyadic response(y);
  power_.words.assign(1, 1);
  power_.exponent = 0;
  power_.negative = false;
  power_ *= w;
  for (std::size_t k = 0; k <= 2 * degree_; ++k) {
    AddTo(k, power_);
    if (k <= degree_) {
      with_response_ = power_;
      with_response_ *= response;
      AddTo(ResponseSlot(degree_, k), with_response_);
      if (k == 0) {
        with_response_ *= response;
        AddTo(ResponseSlot(degree_, degree_ + 1), with_response_);
      }
    }
    power_ *= factor;
  }
}

std::vector<Dyadic> PowerSums::Values() const {
  std::vector<Dyadic> values;
  for (const exact::FixedPoint& sum : sums_) values.push_back(sum.Value());
  return values;
}

}  // namespace qorvex::detail
