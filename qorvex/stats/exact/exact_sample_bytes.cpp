#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#include "qorvex/base/errors.h"
#include "qorvex/stats/detail/exact_moments.h"
#include "qorvex/stats/exact/exact_sample.h"

namespace qorvex {

namespace {

using exact::Dyadic;
using exact::FixedPoint;

constexpr std::array<std::byte, 4> kSignature = {std::byte{'Q'}, std::byte{'X'}, std::byte{'S'},
                                                 std::byte{'M'}};
constexpr std::uint8_t kVersion = 1;

constexpr std::uint8_t kHasMinimum = 1;
constexpr std::uint8_t kHasMaximum = 2;

[[noreturn]] void Reject(const char* why) {
  throw EMathError(rsInvalidValue, std::string("Not the bytes of an exact sample: ") + why);
}

// Appends integers, the lowest byte first.
class Writer {
 public:
  template <class Integer>
  void Put(Integer value) {
    auto bits = static_cast<std::uint64_t>(value);
    for (std::size_t i = 0; i < sizeof(Integer); ++i, bits >>= 8) {
      bytes.push_back(static_cast<std::byte>(bits & 0xFF));
    }
  }
  void Put(std::optional<Extended> value) {
    std::uint64_t mantissa = 0;
    std::uint16_t high = 0;
    if (value) {
      std::memcpy(&mantissa, &*value, sizeof mantissa);
      std::memcpy(&high, reinterpret_cast<const char*>(&*value) + sizeof mantissa, sizeof high);
    }
    Put(mantissa);
    Put(high);
  }

  std::vector<std::byte> bytes;
};

// Takes them off again.
class Reader {
 public:
  explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

  std::span<const std::byte> Take(std::size_t count) {
    if (count > bytes_.size()) Reject("they end too early");
    const auto taken = bytes_.first(count);
    bytes_ = bytes_.subspan(count);
    return taken;
  }
  template <class Integer>
  Integer Get() {
    std::uint64_t bits = 0;
    const auto bytes = Take(sizeof(Integer));
    for (std::size_t i = sizeof(Integer); i-- > 0;) {
      bits = bits << 8 | std::to_integer<std::uint64_t>(bytes[i]);
    }
    return static_cast<Integer>(bits);
  }
  Extended GetExtended() {
    const auto mantissa = Get<std::uint64_t>();
    const auto high = Get<std::uint16_t>();
    // The processor refuses a mantissa whose highest bit does not fit its exponent.
    if ((high & 0x7FFFU) == 0x7FFFU || (mantissa >> 63 != 0) != ((high & 0x7FFFU) != 0)) {
      Reject("an extreme is not a finite number");
    }
    if (mantissa == 0 && high != 0) Reject("an extreme is -0");
    Extended value = 0;
    std::memcpy(&value, &mantissa, sizeof mantissa);
    std::memcpy(reinterpret_cast<char*>(&value) + sizeof mantissa, &high, sizeof high);
    return value;
  }
  [[nodiscard]] bool IsAtEnd() const { return bytes_.empty(); }

 private:
  std::span<const std::byte> bytes_;
};

std::int64_t GetCount(Reader& reader) {
  const auto count = reader.Get<std::int64_t>();
  if (count < 0 || count > std::int64_t{1} << 61) Reject("a count is out of range");
  return count;
}

}  // namespace

template <int kPowerSums>
std::vector<std::byte> ExactSample<kPowerSums>::ToBytes() const {
  const ExactSample canonical = Canonical();
  Writer writer;
  writer.bytes.assign(kSignature.begin(), kSignature.end());
  writer.Put(kVersion);
  writer.Put(static_cast<std::uint8_t>(kPowerSums));
  writer.Put(static_cast<std::uint16_t>(canonical.decimals_));
  writer.Put(finite_);
  writer.Put(special_.nan);
  writer.Put(special_.positive_infinity);
  writer.Put(special_.negative_infinity);
  writer.Put(
      static_cast<std::uint8_t>((minimum_ ? kHasMinimum : 0) | (maximum_ ? kHasMaximum : 0)));
  writer.Put(minimum_);
  writer.Put(maximum_);
  for (const FixedPoint& sum : canonical.sums_) {
    const FixedPoint::Words words = sum.ShortestWords();
    writer.Put(words.position);
    writer.Put(static_cast<std::uint32_t>(words.words.size()));
    for (const std::uint64_t word : words.words) writer.Put(word);
  }
  return writer.bytes;
}

template <int kPowerSums>
ExactSample<kPowerSums> ExactSample<kPowerSums>::FromBytes(std::span<const std::byte> bytes) {
  Reader reader(bytes);
  if (!std::ranges::equal(reader.Take(kSignature.size()), kSignature)) Reject("no signature");
  if (reader.Get<std::uint8_t>() != kVersion) Reject("an unknown version");
  if (reader.Get<std::uint8_t>() != kPowerSums) Reject("another number of power sums");
  ExactSample sample;
  sample.decimals_ = reader.Get<std::uint16_t>();
  if (sample.decimals_ > kMaxDecimals) Reject("too many decimals");
  sample.finite_ = static_cast<std::uint64_t>(GetCount(reader));
  sample.special_.nan = GetCount(reader);
  sample.special_.positive_infinity = GetCount(reader);
  sample.special_.negative_infinity = GetCount(reader);
  const auto flags = reader.Get<std::uint8_t>();
  const Extended minimum = reader.GetExtended();
  const Extended maximum = reader.GetExtended();
  if ((flags & kHasMinimum) != 0) sample.minimum_ = minimum;
  if ((flags & kHasMaximum) != 0) sample.maximum_ = maximum;
  for (FixedPoint& sum : sample.sums_) {
    const auto position = reader.Get<std::int32_t>();
    const auto count = reader.Get<std::uint32_t>();
    // No sum of powers is beyond this, even in units of 10^-kMaxDecimals.
    constexpr std::int32_t kMostWords = 4'096;
    if (position < -kMostWords || position > kMostWords || count > kMostWords) {
      Reject("a sum is out of range");
    }
    std::vector<std::uint64_t> words;
    for (std::uint32_t i = 0; i < count; ++i) words.push_back(reader.Get<std::uint64_t>());
    sum = FixedPoint::FromWords({position, words});
  }
  if (!reader.IsAtEnd()) Reject("they go on after its end");
  if (!sample.IsPossible()) Reject("no values have these sums");
  if (!std::ranges::equal(sample.ToBytes(), bytes)) Reject("not the shortest form");
  return sample;
}

template <int kPowerSums>
bool ExactSample<kPowerSums>::IsPossible() const {
  if (finite_ == 0) {
    return !minimum_ && !maximum_ &&
           std::ranges::all_of(sums_, [](const FixedPoint& sum) { return sum.Sign() == 0; });
  }
  const Extended mean = exact::Rational(sums_[0].Value(), Dyadic(finite_) * Unit(1)).Round();
  if ((minimum_ && *minimum_ > mean) || (maximum_ && *maximum_ < mean)) return false;
  const exact::detail::PowerSums powers = Powers();
  const Dyadic second = powers.SecondMoment();
  if (second.Sign() < 0) return false;
  if (second.Sign() == 0 && (minimum_.value_or(mean) != mean || maximum_.value_or(mean) != mean)) {
    return false;
  }
  if constexpr (kPowerSums == 4) {
    // Pearson (1916): kurtosis >= 1 + skewness^2.
    const Dyadic third = powers.ThirdMoment();
    const Dyadic fourth = powers.FourthMoment();
    if (second.Sign() == 0) return third.Sign() == 0 && fourth.Sign() == 0;
    return fourth * second >= third * third + second * second * second;
  }
  return true;
}

#define QORVEX_INSTANTIATE(kPowerSums)                                                             \
  template std::vector<std::byte> ExactSample<kPowerSums>::ToBytes() const;                        \
  template ExactSample<kPowerSums> ExactSample<kPowerSums>::FromBytes(std::span<const std::byte>); \
  template bool ExactSample<kPowerSums>::IsPossible() const;
QORVEX_INSTANTIATE(2)
QORVEX_INSTANTIATE(4)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex
