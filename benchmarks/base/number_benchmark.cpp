// Single numbers from decimal text and back, compared with the C library, and with std::from_chars.

#include <benchmark/benchmark.h>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "qorvex/base/text.h"

namespace qorvex::benchmarks {
namespace {

// More texts than a branch predictor remembers.
constexpr std::size_t kCount = 100'000;

std::vector<Extended> Numbers() {
  std::mt19937_64 engine(1);
  std::normal_distribution<Extended> normal(300, 100);
  std::vector<Extended> numbers(kCount);
  for (Extended& x : numbers) x = normal(engine);
  return numbers;
}

// The numbers as text, one after another, each with a null character behind it for the C library.
struct Texts {
  explicit Texts(int decimals) {
    for (const Extended x : Numbers()) buffer += Float2EStr(x, decimals) + '\0';
    for (std::string_view rest = buffer; !rest.empty();) {
      views.push_back(rest.substr(0, rest.find('\0')));
      pointers.push_back(rest.data());
      rest.remove_prefix(views.back().size() + 1);
    }
  }

  std::string buffer;
  std::vector<std::string_view> views;
  std::vector<const char*> pointers;
};

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
  static std::list<Texts> all_texts;  // The benchmarks run later, and refer to them.
  for (const int decimals : {6, 14, 20}) {
    const std::string with = ", " + std::to_string(decimals) + " decimals";
    const Texts& texts = all_texts.emplace_back(decimals);
    Register("Str2Float" + with, "ours", texts.views, Str2Float);
    Register("Str2Float" + with, "strtold", texts.pointers,
             [](const char* text) { return std::strtold(text, nullptr); });
    Register("Str2Float" + with, "std::from_chars", texts.views, [](std::string_view text) {
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
