#pragma once

/// @file
/// Unit QorvexMathLabel: the label for mathematical text.

#include "qorvex/controls/math_label.h"
