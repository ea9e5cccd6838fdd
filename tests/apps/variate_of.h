#pragma once

#include <algorithm>
#include <string_view>

#include "apps/common/variates.h"

namespace qorvex::apps {

inline const Variate& VariateOf(std::string_view name) {
  return *std::ranges::find(Variates(), name, &Variate::name);
}

}  // namespace qorvex::apps
