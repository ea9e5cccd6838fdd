#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "qorvex/base/element_types.h"

namespace qorvex::testing {

/// A uniform source that returns the values of a script and counts them; std::out_of_range beyond
/// its end.
class ScriptedSource {
 public:
  explicit ScriptedSource(std::vector<Extended> script) : script_(std::move(script)) {}

  Extended operator()() { return script_.at(drawn_++); }

  [[nodiscard]] std::size_t left() const { return script_.size() - drawn_; }

 private:
  std::vector<Extended> script_;
  std::size_t drawn_ = 0;
};

/// A source that returns one value for ever, or rather until it has been asked too often.
class ConstantSource {
 public:
  struct AskedTooOften {};

  explicit ConstantSource(Extended value) : value_(value) {}

  Extended operator()() {
    constexpr int kOften = 1000;
    if (++drawn_ > kOften) throw AskedTooOften();
    return value_;
  }

 private:
  Extended value_;
  int drawn_ = 0;
};

}  // namespace qorvex::testing
