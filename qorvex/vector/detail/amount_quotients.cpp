#include "qorvex/vector/detail/amount_quotients.h"

#include <cstddef>
#include <cstring>
#include <limits>
#include <utility>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/rounding.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// Quotients of doubles: one that an int32 can hold differs from a tie by at least half of 1/divisor
// or not at all, which 53 bits tell apart. Dividends from 2^53 on are rounded, but their quotients
// are out of range.
template <std::size_t kBytes>
[[gnu::always_inline]] inline std::size_t DivideRegisters(std::span<const std::int64_t> dividends,
                                                          double divisor,
                                                          std::int32_t* quotients) noexcept {
  using Doubles = Register<double, kBytes>;
  using Integers = Register<long long, kBytes>;
  using Bits = Register<unsigned long long, kBytes>;
  constexpr std::size_t kCount = kBytes / sizeof(double);
  using Quotients = Register<std::int32_t, kBytes / 2>;
  constexpr double kRounder = 0x1.8p52;  // leaves an integer in the low bits
  constexpr long long kSmallest = std::numeric_limits<std::int32_t>::min();

  std::size_t i = 0;
  for (; i + kCount <= dividends.size(); i += kCount) {
    Bits bits;
    std::memcpy(&bits, &dividends[i], sizeof bits);
    // Both halves become mantissas, with the exponents of 2^52 and 2^84; 2^63 makes the upper half
    // positive.
    const Bits lower = (bits & 0xFFFF'FFFF) | 0x4330'0000'0000'0000;
    const Bits upper = (bits >> 32) ^ 0x4530'0000'8000'0000;
    const Doubles dividend = (reinterpret_cast<Doubles>(upper) - (0x1p84 + 0x1p63 + 0x1p52)) +
                             reinterpret_cast<Doubles>(lower);
    const Doubles quotient = dividend / divisor;
    const Integers in_range = (quotient >= -0x1p31 - 0.5) & (quotient < 0x1p31 - 0.5);
    const auto rounded = reinterpret_cast<Integers>(quotient + kRounder);
    const Integers result = (rounded & in_range) | (kSmallest & ~in_range);
    const auto narrow = __builtin_convertvector(result, Quotients);
    std::memcpy(quotients + i, &narrow, sizeof narrow);
  }
  return i;
}

QORVEX_AVX2 std::size_t DivideRegistersAvx2(std::span<const std::int64_t> dividends, double divisor,
                                            std::int32_t* quotients) noexcept {
  return DivideRegisters<32>(dividends, divisor, quotients);
}

}  // namespace

void DivideToInt32(std::span<const std::int64_t> dividends, std::int32_t divisor,
                   std::int32_t* quotients) noexcept {
  std::size_t i = 0;
  if (DoublesAreUsual()) {
    i = BestInstructions() >= Instructions::kAvx2
            ? DivideRegistersAvx2(dividends, divisor, quotients)
            : DivideRegisters<16>(dividends, divisor, quotients);
  }
  for (; i < dividends.size(); ++i) {
    const std::int64_t quotient = DivideHalfEven(dividends[i], divisor);
    quotients[i] = std::in_range<std::int32_t>(quotient) ? static_cast<std::int32_t>(quotient)
                                                         : std::numeric_limits<std::int32_t>::min();
  }
}

}  // namespace qorvex::inline QorvexVector::detail
