#pragma once

/// @file
/// Unit QorvexPairStats: statistics over two vectors of which the elements of one index belong
/// together.

#include "qorvex/base/errors.h"
#include "qorvex/stats/correlation.h"
#include "qorvex/stats/regression.h"
