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

namespace qorvex {

namespace elementary {

namespace {

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

// ln x / ln b. The product adds an error of 2^-124 to those of the logarithm.
template <const Base& base>
[[gnu::always_inline]] inline Binary80 LogToBase(Binary80 x) {
  return LogOverAll(x, [](Normalised number) {
    return CorrectlyRounded(LogOf(number) * base.Leading(), kLogHalfWidth,
                            [number] { return Log(Wide256(WideOf(number))) * base.Whole(); });
  });
}

}  // namespace

}  // namespace elementary

inline namespace QorvexGlobals {

Extended Log2(Extended x) noexcept {
  return FromBits(elementary::LogToBase<elementary::kBase2>(elementary::BitsOf(x)));
}

void Log2(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results, elementary::LogToBase<elementary::kBase2>);
}

Extended Log10(Extended x) noexcept {
  return FromBits(elementary::LogToBase<elementary::kBase10>(elementary::BitsOf(x)));
}

void Log10(VectorView<Extended> x, std::span<Extended> results) {
  elementary::OverSpans(x, results, elementary::LogToBase<elementary::kBase10>);
}

}  // namespace QorvexGlobals

}  // namespace qorvex
