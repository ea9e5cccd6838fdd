#include <bit>
#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/big_integer.h"

namespace qorvex::exact {

namespace {

__extension__ typedef unsigned __int128 DoubleLimb;

// Replaces limbs by their quotient and returns the remainder.
std::uint64_t DivideByLimb(Limbs& limbs, std::uint64_t divisor) {
  std::uint64_t remainder = 0;
  for (std::size_t i = limbs.Size(); i-- > 0;) {
    const DoubleLimb dividend = DoubleLimb{remainder} << 64 | limbs[i];
    limbs[i] = static_cast<std::uint64_t>(dividend / divisor);
    remainder = static_cast<std::uint64_t>(dividend % divisor);
  }
  return remainder;
}

// A limb of the quotient: at most 1 too large. The top bit of the divisor is set.
std::uint64_t EstimatedLimb(const std::uint64_t* top, const Limbs& divisor) {
  const std::size_t size = divisor.Size();
  const std::uint64_t first = divisor[size - 1];
  const std::uint64_t second = divisor[size - 2];
  const DoubleLimb dividend = DoubleLimb{top[0]} << 64 | top[-1];
  DoubleLimb quotient;
  DoubleLimb remainder;
  if (top[0] >= first) {
    quotient = ~std::uint64_t{0};
    remainder = dividend - quotient * first;
  } else {
    quotient = dividend / first;
    remainder = dividend % first;
  }
  while (remainder >> 64 == 0 && quotient * second > (remainder << 64 | top[-2])) {
    --quotient;
    remainder += first;
  }
  return static_cast<std::uint64_t>(quotient);
}

// Subtracts factor * divisor from the limbs; true if the result is negative (and wrapped around).
bool SubtractProduct(std::uint64_t* limbs, const Limbs& divisor, std::uint64_t factor) {
  std::uint64_t carry = 0;
  std::uint64_t borrow = 0;
  const std::size_t size = divisor.Size();
  for (std::size_t i = 0; i < size; ++i) {
    const DoubleLimb product = DoubleLimb{factor} * divisor[i] + carry;
    carry = static_cast<std::uint64_t>(product >> 64);
    const DoubleLimb difference =
        DoubleLimb{limbs[i]} - static_cast<std::uint64_t>(product) - borrow;
    limbs[i] = static_cast<std::uint64_t>(difference);
    borrow = static_cast<std::uint64_t>(difference >> 64) & 1;
  }
  const DoubleLimb difference = DoubleLimb{limbs[size]} - carry - borrow;
  limbs[size] = static_cast<std::uint64_t>(difference);
  return difference >> 64 != 0;
}

void AddBack(std::uint64_t* limbs, const Limbs& divisor) {
  std::uint64_t carry = 0;
  const std::size_t size = divisor.Size();
  for (std::size_t i = 0; i < size; ++i) {
    const DoubleLimb sum = DoubleLimb{limbs[i]} + divisor[i] + carry;
    limbs[i] = static_cast<std::uint64_t>(sum);
    carry = static_cast<std::uint64_t>(sum >> 64);
  }
  limbs[size] += carry;
}

// Both have at least two limbs, and the top bit of the divisor is set. Leaves the remainder in
// `dividend` and returns the quotient.
Limbs DivideLimbs(Limbs& dividend, const Limbs& divisor) {
  const std::size_t size = divisor.Size();
  const std::size_t steps = dividend.Size() - size + 1;
  dividend.Resize(dividend.Size() + 1);
  Limbs quotient(steps);
  for (std::size_t i = steps; i-- > 0;) {
    std::uint64_t* const limbs = dividend.Data() + i;
    std::uint64_t digit = EstimatedLimb(limbs + size, divisor);
    if (SubtractProduct(limbs, divisor, digit)) {
      --digit;
      AddBack(limbs, divisor);
    }
    quotient[i] = digit;
  }
  return quotient;
}

}  // namespace

Division Divide(const BigInteger& dividend, const BigInteger& divisor) {
  if (divisor.Sign() == 0) throw EZeroDivide();
  const std::size_t size = divisor.Magnitude().size();
  if (dividend.Magnitude().size() < size) return {.quotient = {}, .remainder = dividend};
  const bool negative = dividend.Sign() < 0;
  const bool quotient_negative = negative != (divisor.Sign() < 0);
  if (size == 1) {
    Limbs quotient(dividend.Magnitude());
    const std::uint64_t remainder = DivideByLimb(quotient, divisor.Magnitude()[0]);
    return {.quotient = BigInteger::FromLimbs(quotient.View(), quotient_negative),
            .remainder = BigInteger::FromLimbs({&remainder, 1}, negative)};
  }
  const auto shift = static_cast<std::size_t>(std::countl_zero(divisor.Magnitude().back()));
  const Limbs normalised((divisor << shift).Magnitude());
  Limbs remainder((dividend << shift).Magnitude());
  const Limbs quotient = DivideLimbs(remainder, normalised);
  return {.quotient = BigInteger::FromLimbs(quotient.View(), quotient_negative),
          .remainder = BigInteger::FromLimbs(remainder.View(), negative) >> shift};
}

BigInteger SquareRoot(const BigInteger& value) {
  if (value.Sign() < 0) throw EInvalidOp();
  if (value.Sign() == 0) return {};
  // From the root of the top 63 or 64 bits plus 1, which is above the root.
  const std::size_t length = value.BitLength();
  const std::size_t shift = length > 64 ? (length - 63) / 2 * 2 : 0;
  const std::uint64_t top = (value >> shift).Magnitude()[0];
  const auto top_root = static_cast<std::uint64_t>(std::sqrt(static_cast<long double>(top)));
  BigInteger root = BigInteger(top_root + 1) << shift / 2;
  for (;;) {
    BigInteger next = (root + Divide(value, root).quotient) >> 1;
    if (next >= root) return root;
    root = std::move(next);
  }
}

}  // namespace qorvex::exact
