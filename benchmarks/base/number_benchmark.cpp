// Single numbers from decimal text and back, compared with the C library, and with std::from_chars.

#include <benchmark/benchmark.h>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "qorvex/base/text.h"

namespace qorvex::benchmarks {
namespace {

constexpr std::size_t kCount = 10'000;

std::vector<Extended> Numbers() {
  std::mt19937_64 engine(1);
  std::normal_distribution<Extended> normal(300, 100);
  std::vector<Extended> numbers(kCount);
  for (Extended& x : numbers) x = normal(engine);
  return numbers;
}

std::vector<std::string> Texts(int decimals) {
  std::vector<std::string> texts;
  for (const Extended x : Numbers()) texts.push_back(Float2EStr(x, decimals));
  return texts;
}

// Registers work(item) for each item of a list.
template <class Item, class Work>
void Register(const std::string& routine, const std::string& who, const std::vector<Item>& items,
              Work work) {
  const std::string name = routine + "/Float/" + who + "/" + std::to_string(kCount);
  benchmark::RegisterBenchmark(name.c_str(), [items, work](benchmark::State& state) {
    for (auto _ : state) {
      for (const Item& item : items) benchmark::DoNotOptimize(work(item));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
  });
}

[[maybe_unused]] const bool registered = [] {
  for (const int decimals : {6, 14, 20}) {
    const std::string with = ", " + std::to_string(decimals) + " decimals";
    const auto texts = Texts(decimals);
    Register("Str2Float" + with, "ours", texts, Str2Float);
    Register("Str2Float" + with, "strtold", texts,
             [](const std::string& text) { return std::strtold(text.c_str(), nullptr); });
    Register("Str2Float" + with, "std::from_chars", texts, [](const std::string& text) {
      Extended x = 0;
      std::from_chars(text.data(), text.data() + text.size(), x);
      return x;
    });
    Register("Float2EStr" + with, "ours", Numbers(),
             [decimals](Extended x) { return Float2EStr(x, decimals); });
    Register("Float2EStr" + with, "snprintf", Numbers(), [decimals](Extended x) {
      char buffer[64];
      return std::snprintf(buffer, sizeof buffer, "%.*Lf", decimals, x);
    });
  }
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
