// Statistics of frequency tables, compared with plain loops.

#include <cstdint>
#include <vector>

#include "qorvex/stats/grouped.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

constexpr Extended kLowerBound = 10;
constexpr Extended kWidth = 0.25L;

[[maybe_unused]] const bool registered = [] {
  Compare<std::uint32_t>("GroupedMean", "ours", [](const TQorLWordVector& freq) {
    return GroupedMean(freq, kLowerBound, kWidth);
  });
  Compare<std::uint32_t>("GroupedMean", "loop", [](const TQorLWordVector& freq) {
    Extended sum = 0;
    Extended total = 0;
    for (std::size_t i = 0; i < freq.size(); ++i) {
      sum += freq[i] * (static_cast<Extended>(i) * kWidth + kLowerBound + kWidth / 2);
      total += freq[i];
    }
    return sum / total;
  });

  Compare<std::uint32_t>("GroupedSampleVariance", "ours", [](const TQorLWordVector& freq) {
    return GroupedSampleVariance(freq, kLowerBound, kWidth);
  });
  Compare<std::uint32_t>("GroupedSampleVariance", "loop", [](const TQorLWordVector& freq) {
    Extended sum = 0;
    Extended total = 0;
    for (std::size_t i = 0; i < freq.size(); ++i) {
      sum += freq[i] * (static_cast<Extended>(i) * kWidth + kLowerBound + kWidth / 2);
      total += freq[i];
    }
    const Extended mean = sum / total;
    Extended squares = 0;
    for (std::size_t i = 0; i < freq.size(); ++i) {
      const Extended difference =
          static_cast<Extended>(i) * kWidth + kLowerBound + kWidth / 2 - mean;
      squares += freq[i] * (difference * difference);
    }
    return squares / (total - 1);
  });

  // Equal frequencies, because the sums of random ones would wrap around.
  Compare<std::uint32_t>("GroupedMedian", "ours", [](const TQorLWordVector& sample) {
    static TQorLWordVector freq;
    if (freq.size() != sample.size()) {
      freq = TQorLWordVector::WithLength(sample.size());
      for (std::uint32_t& f : freq) f = 3;
    }
    return GroupedMedian(freq, kLowerBound, kWidth);
  });
  Compare<std::uint32_t>("GroupedMedian", "loop", [](const TQorLWordVector& sample) {
    static std::vector<std::uint32_t> freq;
    freq.resize(sample.size(), 3);
    Extended half = 0;
    for (const std::uint32_t f : freq) half += f;
    half /= 2;
    Extended before = 0;
    std::size_t i = 0;
    while (before + freq[i] < half) before += freq[i++];
    return kLowerBound + static_cast<Extended>(i) * kWidth + (half - before) * kWidth / freq[i];
  });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
