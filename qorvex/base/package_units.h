#pragma once

/// @file
/// Packages: loadable modules that consist of units. The units are initialised when the module is
/// loaded and finalised in reverse order when it is unloaded.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// A unit of a package. Either function may be null.
struct PackageUnit {
  std::string_view name;           ///< The unit's name.
  void (*initialise)() = nullptr;  ///< Called when the package is loaded.
  void (*finalise)() = nullptr;    ///< Called when the package is unloaded.
};

/// Initialises units in order and finalises them in reverse order when it is destroyed. A package
/// has a session as a global object.
///
/// If an initialisation throws, the units before it are finalised and the exception is passed on;
/// thrown from a global object, it terminates the program.
class QORVEX_EXPORT PackageSession {
 public:
  /// The units must outlive the session.
  explicit PackageSession(std::span<const PackageUnit> units);
  ~PackageSession();
  PackageSession(const PackageSession&) = delete;
  PackageSession& operator=(const PackageSession&) = delete;

 private:
  void Finalise() noexcept;

  std::span<const PackageUnit> units_;
  std::size_t initialised_ = 0;
};

/// The names of the units that are currently initialised, in the order of their initialisation.
/// Safe to call on any thread.
[[nodiscard]] QORVEX_EXPORT std::vector<std::string> InitialisedUnits();

/// Called after the initialisation (true) and after the finalisation (false) of a unit, on the
/// thread that loads or unloads the package.
using PackageObserver = void (*)(std::string_view unit, bool initialised);

/// Replaces the observer of all packages; null removes it.
QORVEX_EXPORT void SetPackageObserver(PackageObserver observer) noexcept;

}  // namespace qorvex::inline QorvexGlobals
