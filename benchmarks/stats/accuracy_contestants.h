#pragma once

#include <functional>
#include <map>
#include <string>

#include "support/distribution_figures.h"

namespace qorvex::benchmarks {

using Routine = std::function<Extended(const testing::Row&)>;

/// The routines that compute the same figure; an empty one where there is none.
struct Contestants {
  Routine classic;
  Routine boost;
  Routine gsl;
  Routine r;
};

/// By the name of the figure: "gamma lower".
const std::map<std::string, Contestants>& AllContestants();

}  // namespace qorvex::benchmarks
