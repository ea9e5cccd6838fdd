#include "qorvex/vector/detail/extreme_values.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/vector/detail/extreme_keys.h"
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
