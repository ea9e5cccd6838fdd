#pragma once

/// @file
/// Unit QorvexMatrixEdit: the editor of a matrix.

#include "qorvex/base/errors.h"
#include "qorvex/controls/matrix_edit.h"
