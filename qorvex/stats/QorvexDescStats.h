#pragma once

/// @file
/// The unit QorvexDescStats, which lives in qorvex/components.

#include "qorvex/components/QorvexDescStats.h"
