#pragma once

#include <functional>
#include <map>
#include <string>

#include "support/distribution_figures.h"

namespace qorvex::benchmarks {

using Routine = std::function<Extended(const testing::Row&)>;

/// The routines that compute the same figure; empty where the library has no such routine.
struct Contestants {
  Routine classic;
  Routine boost;
  Routine gsl;
  Routine r;
};

/// By the name of the figure: "gamma lower".
const std::map<std::string, Contestants>& AllContestants();

}  // namespace qorvex::benchmarks
