// The main program of every benchmark. Runs everything in random order, several times, and prints
// for every routine, type and size the time per item (an element or a multiplication) of our
// routine, and the times of its peers as multiples of it.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Key {
  std::string routine, type;
  std::size_t size;
  auto operator<=>(const Key&) const = default;
};

class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override {
    PrintBasicContext(&GetErrorStream(), context);
    return true;
  }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      std::istringstream name(run.benchmark_name());
      std::string who;
      std::string size;
      Key key;
      std::getline(name, key.routine, '/');
      std::getline(name, key.type, '/');
      std::getline(name, who, '/');
      std::getline(name, size, '/');
      key.size = std::stoul(size);
      // The fastest repetition is the one that other programs disturbed least.
      const double nanoseconds = 1e9 / run.counters.at("items_per_second").value;
      auto [place, is_new] = times_[key].try_emplace(who, nanoseconds);
      if (!is_new) place->second = std::min(place->second, nanoseconds);
    }
  }

  void Finalize() override {
    std::puts("| routine | elements | n | ours, ns | peers, times ours |");
    std::puts("|---|---|---|---|---|");
    for (const auto& [key, times] : times_) {
      const auto ours = times.find("ours");
      if (ours == times.end()) continue;
      std::printf("| %s | %s | %zu | %.*f |", key.routine.c_str(), key.type.c_str(), key.size,
                  ours->second < 0.1 ? 4
                  : ours->second < 1 ? 3
                                     : 2,
                  ours->second);
      const char* separator = " ";
      for (const auto& [who, time] : times) {
        if (who == "ours") continue;
        std::printf("%s%s %.2f", separator, who.c_str(), time / ours->second);
        separator = ", ";
      }
      std::puts(" |");
    }
  }

 private:
  std::map<Key, std::map<std::string, double>> times_;
};

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> defaults{argv[0], "--benchmark_repetitions=5",
                                    "--benchmark_enable_random_interleaving=true",
                                    "--benchmark_min_time=0.02"};
  std::vector<char*> arguments;
  for (std::string& argument : defaults) arguments.push_back(argument.data());
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
