#pragma once

/// @file
/// Unit QorvexMatrix: matrices of the ten numeric element types.

#include "qorvex/matrix/building.h"
#include "qorvex/matrix/product.h"
#include "qorvex/matrix/properties.h"
#include "qorvex/matrix/reduction.h"
#include "qorvex/matrix/row_operations.h"
#include "qorvex/matrix/shape.h"
