#include "qorvex/vector/detail/extreme_values.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// Continues with the elements from an index on.
template <NumericElement T>
void Continue(Extremes<T>& extremes, std::span<const T> values, std::size_t index) noexcept {
  auto [smallest, largest] = extremes;
  for (; index < values.size(); ++index) {
    const T x = values[index];
    if (smallest.value < x && x < largest.value) continue;
    if (smallest.value > x) {
      smallest = {x, index};
    } else if (x == smallest.value) {
      smallest.once = false;
    }
    if (x > largest.value) {
      largest = {x, index};
    } else if (x == largest.value) {
      largest.once = false;
    }
  }
  extremes = {smallest, largest};
}

// Keys of several elements in a register. Keys are equal if the elements are, and have the same
// order; keys of NaN are never taken. (Extended numbers must be encoded as arithmetic leaves them,
// without pseudo-denormals.)
template <NumericElement T, std::size_t kBytes>
struct Keys {
  using Key = T;
  using Limits = std::numeric_limits<T>;
  using Mask = Register<long long, kBytes>;
  static constexpr std::size_t kCount = kBytes / sizeof(T);
  static constexpr T kLeast = Limits::has_infinity ? -Limits::infinity() : Limits::lowest();
  static constexpr T kGreatest = Limits::has_infinity ? Limits::infinity() : Limits::max();

  Register<T, kBytes> x = {};

  Keys() = default;
  [[gnu::always_inline]] explicit Keys(T key) noexcept : x(Register<T, kBytes>{} + key) {}
  [[gnu::always_inline]] void Load(const T* elements) noexcept {
    std::memcpy(&x, elements, kBytes);
  }

  [[gnu::always_inline]] void TakeSmaller(const Keys& other) noexcept {
    x = other.x < x ? other.x : x;
  }
  [[gnu::always_inline]] void TakeLarger(const Keys& other) noexcept {
    x = other.x > x ? other.x : x;
  }
  [[gnu::always_inline]] void AddEqual(const Keys& other, Mask& mask) const noexcept {
    mask |= reinterpret_cast<Mask>(x == other.x);
  }
  [[gnu::always_inline]] T At(std::size_t k) const noexcept { return x[k]; }
  static T Value(T key) noexcept { return key; }
};

// Extended elements have two parts: sign, exponent and the upper 48 bits of the mantissa; and the
// whole mantissa, which decides if the upper parts are equal. Of negative elements all bits are
// flipped.
template <>
struct Keys<Extended, 32> {
  struct Key {
    std::int64_t upper;
    std::int64_t lower;
    friend bool operator==(const Key&, const Key&) = default;
    friend auto operator<=>(const Key&, const Key&) = default;
  };
  using Mask = Register<long long, 32>;
  static constexpr std::size_t kCount = 4;
  static constexpr std::int64_t kMagnitude = 0x7FFF'FFFF'FFFF'FFFF;
  static constexpr std::int64_t kInfiniteExponent = 0x7FFF'0000'0000'0000;
  static constexpr std::int64_t kUpperOne = std::numeric_limits<std::int64_t>::min();
  static constexpr Key kGreatest = {kMagnitude, 0};
  static constexpr Key kLeast = {~kMagnitude, 0};

  Mask upper = {};
  Mask lower = {};
  Mask nan = {};

  Keys() = default;
  [[gnu::always_inline]] explicit Keys(const Key& key) noexcept
      : upper(Mask{} + key.upper), lower(Mask{} + key.lower) {}

  // The eight bytes at an offset of each of four elements, in the order 0, 2, 1, 3.
  [[gnu::always_inline]] static void LoadPart(const Extended* elements, std::size_t offset,
                                              Mask& part) noexcept {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(elements) + offset;
    Mask even;
    Mask odd;
    std::memcpy(&even, bytes, sizeof even);
    std::memcpy(&odd, bytes + 2 * sizeof(Extended) - sizeof(std::int64_t), sizeof odd);
    part = Mask{-1, 0, -1, 0} ? even : odd;
  }
  // The upper parts, except that -0 is below +0.
  [[gnu::always_inline]] static void LoadUpper(const Extended* elements, Mask& part) noexcept {
    LoadPart(elements, 2, part);
    part = (part & kMagnitude) ^ (part < 0);
  }

  [[gnu::always_inline]] void Load(const Extended* elements) noexcept {
    LoadPart(elements, 2, upper);
    LoadPart(elements, 0, lower);
    const Mask negative = (upper < 0) & (lower != 0);
    upper &= kMagnitude;
    nan = (upper >= kInfiniteExponent) & (lower != kUpperOne);
    upper ^= negative;
    lower ^= negative;
  }
  [[gnu::always_inline]] void TakeSmaller(const Keys& other) noexcept {
    Take(other, (other.upper < upper) | ((other.upper == upper) & (other.lower < lower)));
  }
  [[gnu::always_inline]] void TakeLarger(const Keys& other) noexcept {
    Take(other, (other.upper > upper) | ((other.upper == upper) & (other.lower > lower)));
  }
  [[gnu::always_inline]] void AddEqual(const Keys& other, Mask& mask) const noexcept {
    mask |= (upper == other.upper) & (lower == other.lower);
  }
  [[gnu::always_inline]] Key At(std::size_t k) const noexcept { return {upper[k], lower[k]}; }
  static Extended Value(const Key& key) noexcept {
    const std::int64_t negative = key.upper < 0 ? -1 : 0;
    const std::int64_t mantissa = key.lower ^ negative;
    const auto sign_and_exponent =
        static_cast<std::uint16_t>(((key.upper ^ negative) >> 48) | (negative & 0x8000));
    Extended value = 0;
    auto* const bytes = reinterpret_cast<unsigned char*>(&value);
    std::memcpy(bytes, &mantissa, sizeof mantissa);
    std::memcpy(bytes + sizeof mantissa, &sign_and_exponent, sizeof sign_and_exponent);
    return value;
  }

 private:
  [[gnu::always_inline]] void Take(const Keys& other, const Mask& better) noexcept {
    const Mask taken = better & ~other.nan;
    upper = taken ? other.upper : upper;
    lower = taken ? other.lower : lower;
  }
};

// Finds the extremes of a multiple of kStep elements, of which the first is not NaN.
//
// Of each block only the two extreme keys are computed, without branches. Positions are found in
// the end, in the first block that has the extreme; whether it occurs again in a later block is
// looked up only if the extreme keys of that block are the same.
template <NumericElement T, std::size_t kBytes>
class Kernel {
 public:
  using K = Keys<T, kBytes>;
  using Key = typename K::Key;
  static constexpr std::size_t kStep = 2 * K::kCount;

  [[gnu::always_inline]] static Extremes<T> Find(std::span<const T> values) noexcept {
    Best smallest{};
    Best largest{};
    for (std::size_t begin = 0; begin < values.size(); begin += kBlock) {
      const auto block = values.subspan(begin, std::min(kBlock, values.size() - begin));
      if constexpr (std::same_as<T, Extended>) {
        if (begin > 0 && IsBetween(block, smallest.key, largest.key)) continue;
      }
      const auto [least, greatest] = ExtremeKeys(block);
      Update(smallest, least, begin == 0 || least < smallest.key, block);
      Update(largest, greatest, begin == 0 || greatest > largest.key, block);
    }
    return {Located(smallest, values), Located(largest, values)};
  }

 private:
  static constexpr std::size_t kBlock = 4096 / sizeof(T);
  static_assert(kBlock % kStep == 0);

  struct Best {
    Key key;
    std::span<const T> block;
    bool once;
  };
  struct KeyPair {
    Key least;
    Key greatest;
  };
  struct Occurrences {
    const T* first;
    int count;  // 2 stands for more, too
  };

  // True if all elements are certainly between the extremes so far, and are not NaN.
  [[gnu::always_inline]] static bool IsBetween(std::span<const T> block, const Key& smallest,
                                               const Key& largest) noexcept {
    typename K::Mask least = typename K::Mask{} + K::kGreatest.upper;
    typename K::Mask greatest = typename K::Mask{} + K::kLeast.upper;
    for (std::size_t i = 0; i < block.size(); i += K::kCount) {
      typename K::Mask x;
      K::LoadUpper(&block[i], x);
      least = x < least ? x : least;
      greatest = x > greatest ? x : greatest;
    }
    bool between = true;
    for (std::size_t k = 0; k < K::kCount; ++k) {
      // The largest element may be a zero of either sign.
      between &= least[k] > smallest.upper && greatest[k] < largest.upper - 1;
    }
    return between;
  }

  [[gnu::always_inline]] static KeyPair ExtremeKeys(std::span<const T> block) noexcept {
    K least[] = {K(K::kGreatest), K(K::kGreatest)};
    K greatest[] = {K(K::kLeast), K(K::kLeast)};
    for (std::size_t i = 0; i < block.size(); i += kStep) {
      for (std::size_t j = 0; j < 2; ++j) {
        K x;
        x.Load(&block[i + j * K::kCount]);
        least[j].TakeSmaller(x);
        greatest[j].TakeLarger(x);
      }
    }
    least[0].TakeSmaller(least[1]);
    greatest[0].TakeLarger(greatest[1]);
    KeyPair keys = {least[0].At(0), greatest[0].At(0)};
    for (std::size_t k = 1; k < K::kCount; ++k) {
      keys.least = std::min(keys.least, least[0].At(k));
      keys.greatest = std::max(keys.greatest, greatest[0].At(k));
    }
    return keys;
  }

  [[gnu::always_inline]] static void Update(Best& best, const Key& key, bool better,
                                            std::span<const T> block) noexcept {
    if (better) {
      best = {key, block, true};
    } else if (best.once && key == best.key) {
      // A block of NaN has the key of an infinity.
      best.once = OccurrencesOf(key, block).count == 0;
    }
  }

  [[gnu::always_inline]] static Occurrences OccurrencesOf(const Key& key,
                                                          std::span<const T> block) noexcept {
    const T value = K::Value(key);
    const K keys(key);
    Occurrences result{nullptr, 0};
    constexpr std::size_t kGroup = 8 * K::kCount;
    for (std::size_t begin = 0; begin < block.size() && result.count < 2; begin += kGroup) {
      const auto group = block.subspan(begin, std::min(kGroup, block.size() - begin));
      typename K::Mask equal = {};
      for (std::size_t i = 0; i < group.size(); i += K::kCount) {
        K x;
        x.Load(&group[i]);
        x.AddEqual(keys, equal);
      }
      long long any = 0;
      for (std::size_t k = 0; k < kBytes / sizeof any; ++k) any |= equal[k];
      if (any == 0) continue;
      for (const T& x : group) {
        if (x == value && ++result.count == 1) result.first = &x;
      }
    }
    return result;
  }

  [[gnu::always_inline]] static typename Extremes<T>::Extreme Located(
      const Best& best, std::span<const T> values) noexcept {
    const Occurrences found = OccurrencesOf(best.key, best.block);
    return {*found.first, static_cast<std::size_t>(found.first - values.data()),
            best.once && found.count == 1};
  }
};

template <NumericElement T>
QORVEX_AVX2 Extremes<T> FindAvx2(std::span<const T> values) noexcept {
  return Kernel<T, 32>::Find(values);
}

template <NumericElement T>
QORVEX_AVX512 Extremes<T> FindAvx512(std::span<const T> values) noexcept {
  return Kernel<T, 64>::Find(values);
}

// The elements that a kernel takes: a multiple of its step, or none.
template <NumericElement T>
constexpr std::size_t kStep = 128 / std::min<std::size_t>(sizeof(T), 8);

template <NumericElement T>
Extremes<T> Find(std::span<const T> values) noexcept {
  const Instructions best = BestInstructions();
  // Others gain little.
  if constexpr (sizeof(T) == 8) {
    if (best >= Instructions::kAvx512) return FindAvx512(values);
  }
  if (best >= Instructions::kAvx2) return FindAvx2(values);
  if constexpr (std::same_as<T, Extended> || std::same_as<T, std::int64_t>) {
    // The baseline cannot compare 64-bit integers.
    Extremes<T> extremes{{values[0]}, {values[0]}};
    Continue(extremes, values, 1);
    return extremes;
  } else {
    return Kernel<T, 16>::Find(values);
  }
}

}  // namespace

template <NumericElement T>
Extremes<T> ExtremesOf(std::span<const T> values) noexcept {
  Extremes<T> extremes{{values[0]}, {values[0]}};
  if (values[0] != values[0]) return extremes;
  std::size_t done = 1;
  if (values.size() >= kLeastForExtremes) {
    done = values.size() - values.size() % kStep<T>;
    extremes = Find(values.first(done));
  }
  Continue(extremes, values, done);
  return extremes;
}

#define QORVEX_INSTANTIATE(T) template Extremes<T> ExtremesOf(std::span<const T>) noexcept;
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector::detail
