#pragma once

#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>

#include "qorvex/base/element_types.h"

namespace qorvex::exact::detail {

// The least and the greatest of finite values.
template <class T>
class Extremes {
 public:
  void Add(std::span<const T> values) {
    for (const T x : values) {
      if (x < least_ && IsFinite(x)) least_ = x;
      if (x > greatest_ && IsFinite(x)) greatest_ = x;
    }
  }

  // Meaningful if there was a finite value.
  [[nodiscard]] T Least() const noexcept { return least_; }
  [[nodiscard]] T Greatest() const noexcept { return greatest_; }

 private:
  using Limits = std::numeric_limits<T>;

  static bool IsFinite(T x) noexcept {
    if constexpr (FloatElement<T>) {
      return std::isfinite(x);
    } else {
      return true;
    }
  }

  T least_ = Limits::has_infinity ? Limits::infinity() : Limits::max();
  T greatest_ = Limits::has_infinity ? -Limits::infinity() : Limits::min();
};

}  // namespace qorvex::exact::detail
