#pragma once

#include "qorvex/base/comparisons.h"

namespace qorvex::testing {

/// QorTolerance has its old value again when it dies.
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
