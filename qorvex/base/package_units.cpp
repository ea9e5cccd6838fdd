#include "qorvex/base/package_units.h"

#include <algorithm>
#include <atomic>
#include <mutex>

namespace qorvex::inline QorvexGlobals {

namespace {

struct Journal {
  std::mutex mutex;
  std::vector<std::string> initialised;
  std::atomic<PackageObserver> observer = nullptr;
};

// Constructed by the first session, so it is destroyed after the last.
Journal& TheJournal() {
  static Journal journal;
  return journal;
}

void Record(std::string_view unit, bool initialised) {
  Journal& journal = TheJournal();
  {
    const std::lock_guard lock(journal.mutex);
    if (initialised) {
      journal.initialised.emplace_back(unit);
    } else {
      const auto last =
          std::ranges::find(journal.initialised.rbegin(), journal.initialised.rend(), unit);
      if (last != journal.initialised.rend()) journal.initialised.erase(std::next(last).base());
    }
  }
  if (const PackageObserver observer = journal.observer) observer(unit, initialised);
}

}  // namespace

PackageSession::PackageSession(std::span<const PackageUnit> units) : units_(units) {
  try {
    for (const PackageUnit& unit : units_) {
      if (unit.initialise != nullptr) unit.initialise();
      ++initialised_;
      Record(unit.name, true);
    }
  } catch (...) {
    Finalise();
    throw;
  }
}

PackageSession::~PackageSession() {
  Finalise();
}

void PackageSession::Finalise() noexcept {
  while (initialised_ > 0) {
    const PackageUnit& unit = units_[--initialised_];
    if (unit.finalise != nullptr) unit.finalise();
    Record(unit.name, false);
  }
}

std::vector<std::string> InitialisedUnits() {
  Journal& journal = TheJournal();
  const std::lock_guard lock(journal.mutex);
  return journal.initialised;
}

void SetPackageObserver(PackageObserver observer) noexcept {
  TheJournal().observer = observer;
}

}  // namespace qorvex::inline QorvexGlobals
