// Loads the package as a plain module into a program that links only the base library, and unloads
// it again.

#include <atomic>
#include <dlfcn.h>
#include <stdexcept>

#include "qorvex/base/package_units.h"
#include "support/test.h"

// Qt does not free memory that it allocates when it is loaded.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options() {
  return "detect_leaks=0";
}

namespace qorvex {
namespace {

using Strings = std::vector<std::string>;

const Strings kUnits = {"QorvexGlobals",       "Qorvex_rs_math",        "QorvexVector",
                        "QorvexFinVector",     "QorvexMatrix",          "QorvexFinMatrix",
                        "QorvexStatistics",    "QorvexPairStats",       "QorvexRandom",
                        "Qorvex_RS_DescStats", "QorvexDescStats",       "QorvexVectorEdit",
                        "QorvexMatrixEdit",    "QorvexMatrixFractEdit", "QorvexMathLabel"};

Strings log;

Strings Prefixed(char sign, Strings units) {
  for (std::string& unit : units) unit.insert(0, 1, sign);
  return units;
}

struct Package : testing::Test {
  Package() {
    log.clear();
    SetPackageObserver([](std::string_view unit, bool initialised) {
      log.push_back((initialised ? "+" : "-") + std::string(unit));
    });
  }
  ~Package() override { SetPackageObserver(nullptr); }
};

void* Load() {
  void* const library = dlopen(QORVEX_PACKAGE, RTLD_NOW | RTLD_LOCAL);
  EXPECT_NE(library, nullptr) << dlerror();
  return library;
}

std::atomic<bool>& Switch(void* library, const char* symbol) {
  return *static_cast<std::atomic<bool>*>(dlsym(library, symbol));
}

TEST_F(Package, InitialisesItsUnitsInOrderAndFinalisesThemInReverse) {
  constexpr const char* matrix = "_ZN6qorvex12QorvexMatrix25QorMatrixRectangularCheckE";
  constexpr const char* money = "_ZN6qorvex15QorvexFinMatrix25QorMatrixRectangularCheckE";
  EXPECT_EQ(InitialisedUnits(), Strings());
  for (int round = 0; round < 2; ++round) {
    log.clear();
    void* const library = Load();
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(log, Prefixed('+', kUnits));
    EXPECT_EQ(InitialisedUnits(), kUnits);
    EXPECT_TRUE(Switch(library, matrix));
    EXPECT_TRUE(Switch(library, money));
    Switch(library, matrix) = false;

    void* const again = Load();
    EXPECT_EQ(again, library);
    EXPECT_EQ(log.size(), kUnits.size()) << "loaded twice, it is initialised once";
    dlclose(again);
    EXPECT_EQ(InitialisedUnits(), kUnits);

    log.clear();
    dlclose(library);
    EXPECT_EQ(log, Prefixed('-', Strings(kUnits.rbegin(), kUnits.rend())));
    EXPECT_EQ(InitialisedUnits(), Strings());
  }
}

TEST_F(Package, AFailedInitialisationFinalisesTheUnitsBeforeIt) {
  const PackageUnit units[] = {
      {.name = "first"},
      {.name = "second", .finalise = [] { log.emplace_back("finalise second"); }},
      {.name = "third", .initialise = [] { throw std::runtime_error("no"); }},
      {.name = "fourth"}};
  EXPECT_THROW(PackageSession session(units), std::runtime_error);
  EXPECT_EQ(log, (Strings{"+first", "+second", "finalise second", "-second", "-first"}));
  EXPECT_EQ(InitialisedUnits(), Strings());
}

}  // namespace
}  // namespace qorvex
