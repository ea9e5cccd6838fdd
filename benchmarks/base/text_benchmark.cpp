// Vectors as text and back, compared with a loop over a stream, with fmt::join and with
// std::from_chars. All texts identify their values.

#include <charconv>
#include <fmt/format.h>
#include <limits>
#include <sstream>

#include "qorvex/base/vector_text.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

template <FloatElement T>
void RegisterWriting() {
  Compare<T>("Writing", "ours", [](const TQorVector<T>& v) { return Vector2Str(v); });
  Compare<T>("Writing", "std::ostream", [](const TQorVector<T>& v) {
    std::ostringstream out;
    out.precision(std::numeric_limits<T>::max_digits10);
    for (const T x : v) out << x << ", ";
    return std::move(out).str();
  });
  Compare<T>("Writing", "fmt::join",
             [](const TQorVector<T>& v) { return fmt::format("[{}]", fmt::join(v, ", ")); });
}

// The text of one vector serves for every repetition.
template <FloatElement T, class Work>
void CompareReading(const std::string& who, Work work) {
  for (const std::size_t n : {1'000U, 100'000U}) {
    const std::string name =
        std::string("Reading/") + kTypeName<T> + "/" + who + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(name.c_str(), [n, work](benchmark::State& state) {
      const std::string text = Vector2Str(Sample<T>(n, 1));
      for (auto _ : state) benchmark::DoNotOptimize(work(text));
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(n));
    });
  }
}

template <FloatElement T>
void RegisterReading() {
  CompareReading<T>("ours", [](const std::string& text) { return Str2Vector<T>(text); });
  CompareReading<T>("std::istream", [](const std::string& text) {
    std::istringstream in(text);
    std::vector<T> v;
    char separator = 0;
    T x = 0;
    while (in >> separator >> x) v.push_back(x);
    return v;
  });
  CompareReading<T>("std::from_chars", [](const std::string& text) {
    std::vector<T> v;
    const char* const last = text.data() + text.size();
    for (const char* at = text.data() + 1; at < last; at += 2) {
      T x = 0;
      at = std::from_chars(at, last, x).ptr;
      v.push_back(x);
    }
    return v;
  });
}

[[maybe_unused]] const bool registered = [] {
  RegisterWriting<Extended>();
  RegisterWriting<double>();
  RegisterReading<Extended>();
  RegisterReading<double>();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
