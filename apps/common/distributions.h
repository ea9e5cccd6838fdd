#pragma once

/// @file
/// The catalogue of distributions for both programs. A family is added with one entry.

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "apps/common/any_distribution.h"
#include "apps/common/classic_routines.h"
#include "apps/common/number_parameter.h"

namespace qorvex::apps {

/// An entry of the catalogue.
struct Family {
  const char* name;
  /// Other names by which it is found.
  std::vector<const char*> aliases = {};
  const char* summary;
  std::vector<NumberParameter> parameters;
  /// The distribution with the given parameters. EMathError as its class raises it.
  std::unique_ptr<const AnyDistribution> (*make)(Numbers parameters);
  /// Whether its points are counts.
  bool is_discrete = false;
  ClassicRoutines classic = {};
  /// What is wrong with parameters that are valid one by one, or null; null itself where nothing
  /// can be.
  const char* (*inconsistency)(Numbers parameters) = nullptr;
};

/// The families in the order of --help.
[[nodiscard]] std::span<const Family> Families();

/// The family with the given name or alias; null if no family has it.
[[nodiscard]] const Family* FindFamily(std::string_view name);

/// The other names of the family with the given name or alias; none if no family has it.
[[nodiscard]] std::vector<const char*> OtherNames(std::string_view name);

}  // namespace qorvex::apps
