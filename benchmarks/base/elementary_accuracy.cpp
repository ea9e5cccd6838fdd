// elementary_accuracy [FUNCTION|all [COUNT [THREADS [SEED]]]]: compares a function with MPFR at
// random arguments, COUNT in all regions together, and prints for each region how many results were
// not the nearest number, the largest error in units of the last place, and where it was.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "base/elementary/elementary_functions.h"

namespace qorvex::testing {

namespace {

struct Task {
  std::string function = "all";
  std::uint64_t count = 1'000'000;
  std::uint64_t threads = 1;
  std::uint64_t seed = 1;
};

RegionOutcome TryInThreads(const ElementaryFunction& function, const ArgumentRegion& region,
                           std::uint64_t count, const Task& task) {
  std::vector<RegionOutcome> outcomes(task.threads);
  std::vector<std::thread> threads;
  for (std::uint64_t i = 0; i < task.threads; ++i) {
    threads.emplace_back([&, i] {
      outcomes[i] = Try(function, region, count / task.threads, task.seed * 1000 + i);
      mpfr_free_cache();
    });
  }
  RegionOutcome sum;
  for (std::uint64_t i = 0; i < task.threads; ++i) {
    threads[i].join();
    sum.Add(outcomes[i]);
  }
  return sum;
}

void Print(const char* name, const RegionOutcome& outcome) {
  std::printf("  %-42s %12llu %10llu", name, static_cast<unsigned long long>(outcome.tried),
              static_cast<unsigned long long>(outcome.not_nearest));
  if (outcome.largest_error > 0)
    std::printf("  %.6Lf at %s", outcome.largest_error, Text(outcome.worst).c_str());
  std::printf("\n");
  std::fflush(stdout);
}

// True if every result is as near as promised.
bool Report(const ElementaryFunction& function, const Task& task) {
  std::printf("%s\n  %-42s %12s %10s  largest error of these\n", function.name, "arguments",
              "tried", function.is_nearest ? "not near." : "over 0.5");
  RegionOutcome all;
  bool kept = true;
  for (const ArgumentRegion& region : function.regions) {
    const RegionOutcome outcome =
        TryInThreads(function, region, task.count / function.regions.size(), task);
    Print(region.name, outcome);
    all.Add(outcome);
    kept = function.IsKept(region, outcome) && kept;
  }
  Print("all", all);
  return kept;
}

}  // namespace

}  // namespace qorvex::testing

int main(int argc, char** argv) {
  using namespace qorvex::testing;
  Task task;
  if (argc > 1) task.function = argv[1];
  if (argc > 2) task.count = std::strtoull(argv[2], nullptr, 10);
  if (argc > 3) task.threads = std::max(1ULL, std::strtoull(argv[3], nullptr, 10));
  if (argc > 4) task.seed = std::strtoull(argv[4], nullptr, 10);
  bool known = false;
  bool kept = true;
  for (const ElementaryFunction& function : ElementaryFunctions()) {
    if (task.function != "all" && task.function != function.name) continue;
    known = true;
    kept = Report(function, task) && kept;
  }
  if (!known) std::fprintf(stderr, "there is no function %s\n", task.function.c_str());
  return known && kept ? EXIT_SUCCESS : EXIT_FAILURE;
}
