#pragma once

/// @file
/// Unit QorvexMatrix: matrices of the ten numeric element types.

#include "qorvex/base/errors.h"
#include "qorvex/matrix/access.h"
#include "qorvex/matrix/arithmetic.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/factor_type.h"
#include "qorvex/matrix/product.h"
#include "qorvex/matrix/properties.h"
#include "qorvex/matrix/reduction.h"
#include "qorvex/matrix/row_major.h"
#include "qorvex/matrix/row_operations.h"
#include "qorvex/matrix/shape.h"
#include "qorvex/matrix/solve.h"
#include "qorvex/matrix/sorting.h"
#include "qorvex/matrix/sums.h"
#include "qorvex/matrix/transforms.h"
#include "qorvex/matrix/transpose.h"
#include "qorvex/matrix/vector_product.h"
