#pragma once

/// @file
/// The variates that `random` knows, their parameters and routines.

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "apps/common/number_parameter.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::apps {

/// The parameters in order.
class VariateArguments {
 public:
  void Append(const TQorFloatVector& list) { lists_.push_back(list); }
  void Set(std::size_t index, const TQorFloatVector& list) { lists_[index] = list; }

  /// The number of a parameter that takes one.
  Extended operator[](std::size_t index) const { return lists_[index][0]; }
  /// The numbers of a parameter of the kind kReals.
  [[nodiscard]] const TQorFloatVector& List(std::size_t index) const { return lists_[index]; }
  [[nodiscard]] std::size_t size() const { return lists_.size(); }

 private:
  std::vector<TQorFloatVector> lists_;
};

/// Draws into a vector of one element, or of as many as the variate has.
using Draw = std::function<void(TQorFloatVector& variate, UniformSource source)>;

/// A way to draw a variate.
struct VariateMethod {
  /// Empty where there is only one.
  const char* name;
  /// Computes what all variates of these parameters share, and raises the errors of that.
  Draw (*prepare)(const VariateArguments& arguments);
  /// What it takes of the parameters' numbers, or empty if all.
  const char* limits = "";
  /// What is wrong with parameters that are fine one by one, or empty; null where nothing can be.
  std::string (*inconsistency)(const VariateArguments& arguments) = nullptr;
};

struct Variate {
  const char* name;
  const char* summary;
  std::vector<NumberParameter> parameters;
  /// The first one is taken when none is asked for.
  std::vector<VariateMethod> methods;
  /// The classic routine, where the methods go beyond it.
  std::optional<VariateMethod> classic = std::nullopt;
};

/// The variates in the order of --help.
[[nodiscard]] std::span<const Variate> Variates();

}  // namespace qorvex::apps
