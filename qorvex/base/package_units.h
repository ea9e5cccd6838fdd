#pragma once

/// @file
/// Packages: loadable modules made of units, which are initialised when the module is loaded and
/// finalised in the reverse order when it is unloaded.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// One unit of a package, and what is done for it; either function may be null.
struct PackageUnit {
  std::string_view name;           ///< The unit's name.
  void (*initialise)() = nullptr;  ///< Called when the package is loaded.
  void (*finalise)() = nullptr;    ///< Called when the package is unloaded.
};

/// Initialises units, each after those before it, and finalises them in the reverse order when it
/// is destroyed: a package has one of these as a global object. When an initialisation raises, the
/// units before it are finalised, and the error reaches the caller; from a global object it ends
/// the program.
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

/// The names of all units of packages that are initialised now, in the order in which they were.
/// May be called on any thread.
[[nodiscard]] QORVEX_EXPORT std::vector<std::string> InitialisedUnits();

/// Is told of a unit after its initialisation (true) and after its finalisation (false), on the
/// thread that loads or unloads.
using PackageObserver = void (*)(std::string_view unit, bool initialised);

/// Sets the observer of all packages, in place of the one before; null for none.
QORVEX_EXPORT void SetPackageObserver(PackageObserver observer) noexcept;

}  // namespace qorvex::inline QorvexGlobals
