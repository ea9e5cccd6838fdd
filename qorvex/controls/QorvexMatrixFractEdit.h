#pragma once

/// @file
/// Unit QorvexMatrixFractEdit: the editor of a matrix of fractions.

#include "qorvex/base/errors.h"
#include "qorvex/controls/matrix_fract_edit.h"
