// The logarithms to the bases 2 and 10.
//
// No result is a midpoint: the rational ones are integers, which the first stage rounds correctly.
//
// - If log2 x = p/q, x^q = 2^p, and x, a fraction of integers, has no prime factor but 2: it is a
//   power of 2.
// - If log10 x = p/q, x^q = 2^p 5^p, and x = 2^a 5^b with q a = q b = p: it is a power of 10.

#include "qorvex/base/elementary/detail/log256.h"
#include "qorvex/base/elementary/detail/log_domain.h"
#include "qorvex/base/elementary/detail/log_kernel.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

// 1 / ln b, cut off to 256 bits.
struct Base {
  std::uint64_t words[4];
  std::int64_t exponent;

  [[nodiscard]] constexpr Wide Leading() const { return {Join(words[3], words[2]), exponent}; }
  [[nodiscard]] Wide256 Whole() const {
    return {{words[0], words[1], words[2], words[3]}, exponent};
  }
};
constexpr Base kBase2{
    {0x8b25166cd1a13247, 0xeb577aa8dd695a58, 0xbe87fed0691d3e88, 0xb8aa3b295c17f0bb}, 0};
constexpr Base kBase10{
    {0x3a3f2d44f78ea53c, 0x3ee3460245c9a202, 0x355baaafad33dc32, 0xde5bd8a937287195}, -2};

template <const Base& base>
[[gnu::noinline]] Wide256 LogToBaseInDoubt(Normalised x) {
  return Log(Wide256(WideOf(x))) * base.Whole();
}

template <const Base& base>
[[gnu::always_inline]] inline Binary80 Rounded(const Wide& log, Normalised x) {
  return CorrectlyRounded(log, kLogHalfWidth, [x] { return LogToBaseInDoubt<base>(x); });
}

template <const Base& base>
[[gnu::noinline]] Binary80 LogToBaseBeside1(Normalised x) {
  const Wide log = LogBeside1(Join(x.significand, 0), x.exponent);
  return log.IsZero() ? SignedZero(false) : Rounded<base>(log * base.Leading(), x);
}

// ln x / ln b. In base 2, the sum's error becomes 2^-108.7, and the product adds 2^-109.4: 2^-96.5
// of the smallest result, 2^-11.5. In base 10 it is 2^-96.6.
template <const Base& base>
[[gnu::always_inline]] inline Binary80 LogToBase(Binary80 x) {
  Normalised number{x.significand, x.sign_exponent - kExponentBias};
  if (!IsPositiveNormal(x)) [[unlikely]] {
    if (!IsPositive(x)) return LogOfSpecial(x);
    number = Normalise(x);
  }
  if (IsBeside1(number.significand, number.exponent)) return LogToBaseBeside1<base>(number);
  FixedLog log = LogByTables(number.significand, number.exponent);
  log.magnitude = MultiplyHigh(log.magnitude, base.Leading().mantissa);
  return Rounded<base>(Floating(log, base.exponent + 1), number);
}

}  // namespace

Extended Log2(Extended x) noexcept {
  return FromBits(LogToBase<kBase2>(BitsOf(x)));
}

void Log2(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return LogToBase<kBase2>(t); });
}

Extended Log10(Extended x) noexcept {
  return FromBits(LogToBase<kBase10>(BitsOf(x)));
}

void Log10(VectorView<Extended> x, std::span<Extended> results) {
  OverSpans(x, results, [](Binary80 t) { return LogToBase<kBase10>(t); });
}

}  // namespace qorvex::inline QorvexGlobals
