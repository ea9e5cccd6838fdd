#include <cmath>
#include <cstdint>
#include <iostream>
#include <span>
#include <thread>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexStatistics.h"
#include "qorvex/stats/exact/exact_sample.h"

using namespace qorvex;

// Every thread fills a sample of its own; the samples are merged at the end.
ExactSample<> Describe(std::span<const Extended> values, std::size_t thread_count) {
  std::vector<ExactSample<>> samples(thread_count);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < thread_count; ++i) {
    const std::size_t begin = values.size() * i / thread_count;
    const std::size_t end = values.size() * (i + 1) / thread_count;
    threads.emplace_back(
        [&samples, i, part = values.subspan(begin, end - begin)] { samples[i].Add(part); });
  }
  for (std::thread& thread : threads) thread.join();
  ExactSample<> all;
  for (const ExactSample<>& sample : samples) all.Merge(sample);
  return all;
}

int main() {
  // A million readings of a tenth: as extended values, and as what they are.
  const std::vector<Extended> readings(1'000'000, 0.1L);
  const std::vector<std::int64_t> tenths(1'000'000, 1);
  ExactSample decimal;
  decimal.AddScaled(tenths, 1);
  std::cout << "In order  " << Float2Str(QorMean(readings)) << '\n'
            << "Exact     " << Float2Str(Describe(readings, 1).Mean()) << '\n'
            << "Decimal   " << Float2Str(decimal.Mean()) << ", sum " << Float2Str(decimal.Sum())
            << '\n';

  std::vector<Extended> waves;
  for (int i = 0; i < 1'000'000; ++i) waves.push_back(1e6L + std::fmod(i * 0.37L, 1.0L));
  const ExactSample<> sample = Describe(waves, 1);
  std::cout << "Standard deviation " << Float2Str(sample.SampleStdDev()) << ", kurtosis "
            << Float2Str(sample.SampleKurtosis()) << '\n';
  for (const std::size_t threads : {2U, 3U, 8U}) {
    std::cout << threads
              << " threads: " << (Describe(waves, threads) == sample ? "the same" : "another")
              << " sample\n";
  }

  // A sample without its first half, and as bytes.
  ExactSample<> second_half = sample;
  second_half.Remove(std::span(waves).first(500'000));
  const ExactSample<> read = ExactSample<>::FromBytes(second_half.ToBytes());
  std::cout << read.Count() << " values remain, with the mean " << Float2Str(read.Mean()) << '\n';
}
