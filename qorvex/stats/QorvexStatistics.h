#pragma once

/// @file
/// Unit QorvexStatistics: statistics over vectors.

#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/stats/shape.h"
#include "qorvex/stats/trimmed_means.h"
