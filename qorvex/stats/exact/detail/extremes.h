#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>

#include "qorvex/base/element_types.h"

namespace qorvex::exact::detail {

// What stands for a value in comparisons: in the order of the values, but different values may have
// the same. Of an extended value the upper 64 bits, which are compared faster.
inline std::int64_t OrderKey(const Extended& value) noexcept {
  std::int64_t bits = 0;
  std::memcpy(&bits, reinterpret_cast<const char*>(&value) + 2, sizeof bits);
  return bits ^ ((bits >> 63) & std::numeric_limits<std::int64_t>::max());
}
inline double OrderKey(double value) noexcept {
  return value;
}
inline float OrderKey(float value) noexcept {
  return value;
}

template <class Key>
struct KeyRange {
  Key least;
  Key greatest;
};

// The least and the greatest key of some values, or the keys of infinities. The keys of NaNs
// are left out or lie beyond those of infinities.
template <FloatElement T>
KeyRange<decltype(OrderKey(T()))> KeyRangeOf(std::span<const T> values) noexcept;

// The least and the greatest of finite values.
template <FloatElement T>
class Extremes {
 public:
  void Add(std::span<const T> values) noexcept {
    constexpr std::size_t kFew = 16;
    if (values.size() <= kFew) {
      for (const T& x : values) AddOne(x);
      return;
    }
    const auto [least, greatest] = KeyRangeOf(values);
    if (least <= OrderKey(-kInfinity) || greatest >= OrderKey(kInfinity)) {
      for (const T& x : values) AddOne(x);
    } else if (least <= OrderKey(least_) || greatest >= OrderKey(greatest_)) {
      for (const T& x : values) {
        const auto key = OrderKey(x);
        if (key == least || key == greatest) AddOne(x);
      }
    }
  }

  // Meaningful if there was a finite value.
  [[nodiscard]] T Least() const noexcept { return least_; }
  [[nodiscard]] T Greatest() const noexcept { return greatest_; }

 private:
  static constexpr T kInfinity = std::numeric_limits<T>::infinity();

  void AddOne(T x) noexcept {
    if (x < least_ && std::isfinite(x)) least_ = x;
    if (x > greatest_ && std::isfinite(x)) greatest_ = x;
  }

  T least_ = kInfinity;
  T greatest_ = -kInfinity;
};

}  // namespace qorvex::exact::detail
