#pragma once

#include "qorvex/base/comparisons.h"

namespace qorvex::testing {

/// Restores QorTolerance in its destructor.
class KeptTolerance {
 public:
  KeptTolerance() = default;
  ~KeptTolerance() { QorTolerance = initial_; }
  KeptTolerance(const KeptTolerance&) = delete;
  KeptTolerance& operator=(const KeptTolerance&) = delete;

 private:
  Extended initial_ = QorTolerance;
};

}  // namespace qorvex::testing
