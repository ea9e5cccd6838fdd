#pragma once

#include <benchmark/benchmark.h>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
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

/// Registers work(vector), or work(vector, other vector), as "routine/type/who/n" for a thousand, a
/// hundred thousand and a million elements. The vectors differ from call to call, so that the
/// branch predictor cannot learn them.
template <NumericElement T, class Work>
void Compare(const std::string& routine, const std::string& who, Work work) {
  for (const std::size_t n : {1'000U, 100'000U, 1'000'000U}) {
    const std::string name = routine + "/" + kTypeName<T> + "/" + who + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(name.c_str(), [n, work](benchmark::State& state) {
      constexpr std::size_t kSamples = 16;
      std::vector<TQorVector<T>> samples;
      const std::size_t count = n <= 1'000 ? kSamples : 2;
      for (std::size_t i = 0; i < count; ++i) samples.push_back(Sample<T>(n, i));
      std::size_t next = 0;
      for (auto _ : state) {
        const TQorVector<T>& vector = samples[next];
        next = (next + 1) % count;
        if constexpr (std::invocable<Work, const TQorVector<T>&>) {
          benchmark::DoNotOptimize(work(vector));
        } else {
          benchmark::DoNotOptimize(work(vector, samples[next]));
        }
      }
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n));
    });
  }
}

}  // namespace qorvex::benchmarks
