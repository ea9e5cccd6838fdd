#pragma once

/// @file
/// Unit QorvexMatrixEdit: the editor of a matrix.

#include "qorvex/controls/matrix_edit.h"
