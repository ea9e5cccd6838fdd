#pragma once

/// @file
/// The package qorvex_stats_rt: its units.

#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/package_units.h"

namespace qorvex {

/// The units of the package, each after those that it builds on. Loading libqorvex_stats_rt
/// initialises them in this order, once, however often it is loaded; unloading finalises them in
/// the reverse order.
///
/// In a static library there is no loading: a program that does not call this function leaves the
/// list out, and the units are as their initialisation would leave them.
///
/// A program that has made widgets must keep the package loaded: Qt holds on to their types.
[[nodiscard]] QORVEX_EXPORT std::span<const PackageUnit> PackageUnits() noexcept;

}  // namespace qorvex
