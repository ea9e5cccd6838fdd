#pragma once

#include <algorithm>
#include <cstdint>

namespace qorvex::benchmarks {

/// Calls visit(k) for every k from 0 to count - 1 with (start + k step) mod 2^64 < window, in
/// ascending order.
///
/// The points k step lie on a circle. Euclid's algorithm on the step and its complement yields the
/// least p and q for which p steps lead forward by u < window and q steps backward by v < window.
/// By the three-gap theorem, from a hit it takes p, q or p + q steps to the next one. The same
/// algorithm takes the start to a hit before or after it, since a point in a gap can be moved by
/// the shorter of two steps until it lies within the longer (Lefevre and Muller 2001, "Worst cases
/// for correct rounding of the elementary functions in double precision", for the least of the
/// points). The step is at least 4 away from 0. Cost: some 20 divisions, and a few operations for a
/// hit.
template <class Visit>
void VisitHits(std::uint64_t start, std::uint64_t step, std::uint64_t window, std::int64_t count,
               Visit visit) {
  std::uint64_t x = start, u = step, v = 0 - step;
  std::int64_t p = 1, q = 1, k = 0;
  // From here on x < max(u, v), and start + k step = x.
  if (u >= v && x >= u) {
    x -= u;
    --k;
  } else if (v > u && x >= v) {
    x -= v;
    ++k;
  }
  while ((u >= window || v >= window) && u != 0 && v != 0) {
    std::uint64_t& longer = u > v ? u : v;
    const std::uint64_t shorter = std::min(u, v);
    const std::int64_t time = u > v ? q : p;
    const auto moves = static_cast<std::int64_t>(x / shorter);
    x %= shorter;
    k += u > v ? moves * time : -moves * time;
    // Until the longer one is below the window or below the shorter one.
    std::uint64_t times = longer / shorter;
    if (longer >= window) times = std::min(times, (longer - window) / shorter + 1);
    (u > v ? p : q) += static_cast<std::int64_t>(times) * time;
    longer -= times * shorter;
  }
  if (x >= window) return;
  // How often the step from x to x + size can be repeated within a room, at most `most` times.
  const auto run = [](std::uint64_t room, std::uint64_t size, std::int64_t most) {
    const std::uint64_t fits = size == 0 ? ~std::uint64_t{0} : room / size + 1;
    return static_cast<std::int64_t>(
        std::min(fits, static_cast<std::uint64_t>(std::max<std::int64_t>(most, 1))));
  };
  while (k >= 0) {
    if (x >= u) {
      const std::int64_t n = run(x - u, u, k / p + 1);
      x -= static_cast<std::uint64_t>(n) * u;
      k -= n * p;
    } else if (v < window && x < window - v) {
      const std::int64_t n = run(window - v - 1 - x, v, k / q + 1);
      x += static_cast<std::uint64_t>(n) * v;
      k -= n * q;
    } else {
      x += v - u;
      k -= p + q;
    }
  }
  for (;;) {
    if (u < window && x < window - u) {
      const std::int64_t n = run(window - u - 1 - x, u, -k / p);
      x += static_cast<std::uint64_t>(n) * u;
      k += n * p;
    } else if (x >= v) {
      const std::int64_t n = run(x - v, v, -k / q);
      x -= static_cast<std::uint64_t>(n) * v;
      k += n * q;
    } else {
      x += u - v;
      k += p + q;
    }
    if (k >= count) return;
    if (k >= 0) visit(k);
  }
}

}  // namespace qorvex::benchmarks
