#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::benchmarks {

/// The name of an element type in benchmark names.
template <class T>
constexpr const char* kTypeName = nullptr;
template <>
inline constexpr const char* kTypeName<Extended> = "Float";
template <>
inline constexpr const char* kTypeName<double> = "Double";
template <>
inline constexpr const char* kTypeName<float> = "Single";
template <>
inline constexpr const char* kTypeName<std::int64_t> = "Int64";
template <>
inline constexpr const char* kTypeName<std::uint32_t> = "LWord";
template <>
inline constexpr const char* kTypeName<std::int32_t> = "LInt";
template <>
inline constexpr const char* kTypeName<std::uint16_t> = "Word";
template <>
inline constexpr const char* kTypeName<std::int16_t> = "SmallInt";
template <>
inline constexpr const char* kTypeName<std::uint8_t> = "Byte";
template <>
inline constexpr const char* kTypeName<std::int8_t> = "SInt";

/// Normally distributed floating elements with mean 3, or integers over their whole range.
template <NumericElement T>
TQorVector<T> Sample(std::size_t n, std::size_t seed) {
  std::mt19937_64 engine(seed);
  std::normal_distribution<Extended> normal(3, 1);
  auto vector = TQorVector<T>::WithLength(n);
  for (T& x : vector)
    x = FloatElement<T> ? static_cast<T>(normal(engine)) : static_cast<T>(engine());
  return vector;
}

/// Makes a sample of n elements; other seeds make other samples of the same kind.
template <NumericElement T>
using MakeSample = TQorVector<T> (*)(std::size_t n, std::size_t seed);

/// Two samples, or shorter ones of 16,000 elements in all, or of 100,000 if they are so short that
/// a branch predictor could learn them. Made once for all benchmarks.
template <NumericElement T>
const std::vector<TQorVector<T>>& Samples(std::size_t n, MakeSample<T> make) {
  static std::map<std::pair<std::size_t, MakeSample<T>>, std::vector<TQorVector<T>>> made;
  std::vector<TQorVector<T>>& samples = made[{n, make}];
  const std::size_t elements = n < 1'000 ? 100'000 : 16'000;
  while (samples.size() < std::max<std::size_t>(2, elements / n))
    samples.push_back(make(n, samples.size()));
  return samples;
}

/// The usual lengths, and those of a routine in the plot.
inline constexpr std::initializer_list<std::size_t> kSizes = {1'000, 100'000, 1'000'000};
inline constexpr std::initializer_list<std::size_t> kPlotSizes = {10,     100,     1'000,
                                                                  10'000, 100'000, 1'000'000};

/// Registers work(vector), or work(vector, other vector), as "routine/type/who/n" for each n. The
/// vectors differ from call to call, so that the branch predictor cannot learn them. Work that
/// takes a reference that is not const changes a copy, which is made within the measured time, but
/// without allocation.
template <NumericElement T, class Work>
void Compare(const std::string& routine, const std::string& who, Work work,
             MakeSample<T> make = Sample<T>, std::initializer_list<std::size_t> sizes = kSizes) {
  for (const std::size_t n : sizes) {
    const std::string name = routine + "/" + kTypeName<T> + "/" + who + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(name.c_str(), [n, work, make](benchmark::State& state) {
      const std::vector<TQorVector<T>>& samples = Samples(n, make);
      auto scratch = TQorVector<T>::WithLength(n);
      std::size_t next = 0;
      for (auto _ : state) {
        const TQorVector<T>& vector = samples[next];
        next = (next + 1) % samples.size();
        if constexpr (std::invocable<Work, const TQorVector<T>&>) {
          benchmark::DoNotOptimize(work(vector));
        } else if constexpr (std::invocable<Work, TQorVector<T>&>) {
          std::copy(vector.begin(), vector.end(), scratch.begin());
          work(scratch);
          benchmark::ClobberMemory();
        } else {
          benchmark::DoNotOptimize(work(vector, samples[next]));
        }
      }
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n));
    });
  }
}

}  // namespace qorvex::benchmarks
