#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/element_types.h"

namespace qorvex::testing {

/// A uniform source that returns the values of a script, and throws std::out_of_range after the
/// last one.
class ScriptedSource {
 public:
  explicit ScriptedSource(std::vector<Extended> script) : script_(std::move(script)) {}

  Extended operator()() { return script_.at(drawn_++); }

  [[nodiscard]] std::size_t left() const { return script_.size() - drawn_; }

 private:
  std::vector<Extended> script_;
  std::size_t drawn_ = 0;
};

}  // namespace qorvex::testing
