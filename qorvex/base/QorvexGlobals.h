#pragma once

/// @file
/// Unit QorvexGlobals: element, vector and matrix types, currencies, comparisons, constants,
/// elementary and special functions, text, fractions and random numbers.

#include "qorvex/base/checked_math.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/base/currency.h"
#include "qorvex/base/currency_arithmetic.h"
#include "qorvex/base/currency_literals.h"
#include "qorvex/base/currency_text.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/fitted_text.h"
#include "qorvex/base/fractions.h"
#include "qorvex/base/package_units.h"
#include "qorvex/base/random.h"
#include "qorvex/base/rounding.h"
#include "qorvex/base/special_functions.h"
#include "qorvex/base/swap.h"
#include "qorvex/base/text.h"
#include "qorvex/base/vector_text.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/base/version.h"
