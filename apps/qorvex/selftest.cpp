#include <array>
#include <cpuid.h>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>

#include "apps/common/self_test.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/version.h"

namespace qorvex::apps {

namespace {

constexpr const char* kSelfTestHelp = R"(
  Computes two million figures: elementary functions, variates of fixed seeds,
  densities, tails, quantiles, statistics, matrices and text. Their hash is that of
  the release on every x86-64 processor and with every compiler; the status is 1 if
  it is another one.)";

// What the processor says of itself.
std::string ProcessorName() {
  std::array<unsigned, 12> registers{};
  for (unsigned part = 0; part < 3; ++part) {
    unsigned* const r = &registers[4 * part];
    if (__get_cpuid(0x80000002 + part, r, r + 1, r + 2, r + 3) == 0) return "unknown";
  }
  std::string name(reinterpret_cast<const char*>(registers.data()), sizeof registers);
  name.resize(std::strlen(name.c_str()));
  name.erase(0, name.find_first_not_of(' '));
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

std::string KernelNames() {
  switch (BestInstructions()) {
    case Instructions::kAvx512:
      return "AVX-512";
    case Instructions::kAvx2:
      return "AVX2";
    case Instructions::kBaseline:
      break;
  }
  return "baseline";
}

std::string CompilerName() {
#ifdef __clang__
  return "Clang " __clang_version__;
#else
  return "GCC " __VERSION__;
#endif
}

std::string HashText(std::uint64_t hash) {
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
  return text;
}

void Run() {
  const FigureHash hash = HashOfFigures();
  const bool same = hash.Value() == kReleaseHash;
  WriteResult("Version:\t" QORVEX_VERSION "\nProcessor:\t" + ProcessorName() + "\nKernels:\t" +
              KernelNames() + "\nCompiler:\t" + CompilerName() + "\nBits of a Figure:\t" +
              std::to_string(std::numeric_limits<Extended>::digits) + "\nFigures:\t" +
              std::to_string(hash.Count()) + "\nHash:\t" + HashText(hash.Value()) +
              "\nHash of the Release:\t" + HashText(kReleaseHash) + "\nThe Same Figures:\t" +
              (same ? "yes" : "no") + '\n');
  if (!same) throw std::runtime_error("selftest: the figures differ from those of the release");
}

}  // namespace

void AddSelfTest(CLI::App& program) {
  CLI::App& command = *program.add_subcommand(
      "selftest", "Whether this machine computes the same figures as every other");
  command.footer(std::string("Figures:") + kSelfTestHelp + kExitStatusHelp);
  command.callback(Run);
}

}  // namespace qorvex::apps
