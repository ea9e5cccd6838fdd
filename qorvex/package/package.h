#pragma once

/// @file
/// The units of the package qorvex_stats_rt.

#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/package_units.h"

namespace qorvex {

/// The units of the package, each after those it depends on.
///
/// - Loading libqorvex_stats_rt initialises them in this order, once, however often it is loaded.
///   Unloading finalises them in reverse order.
/// - A static library is not loaded: a program that does not call this function does not link the
///   list, and the units are already in their initialised state.
/// - A program that has created widgets must keep the package loaded, because Qt holds on to their
///   types.
[[nodiscard]] QORVEX_EXPORT std::span<const PackageUnit> PackageUnits() noexcept;

}  // namespace qorvex
