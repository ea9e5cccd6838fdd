#pragma once

/// @file
/// Unit QorvexFinVector: vectors of the three currencies.
///
/// The routines are templates of the unit QorvexVector; the element type selects the version for
/// amounts.
///
/// - They work on the stored integers, exactly and wrapping around; CheckedSum raises instead.
///   SumVector, the sign tests and LinearTransformVector state where amounts are treated
///   differently.
/// - SameCurrency decides which amounts are equal in a ranking.
/// - There are no squares, products, element-wise functions or moving averages of money.

#include "qorvex/base/errors.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/allocation.h"
#include "qorvex/vector/arithmetic.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/currency_conversion.h"
#include "qorvex/vector/currency_sums.h"
#include "qorvex/vector/currency_text.h"
#include "qorvex/vector/extremes.h"
#include "qorvex/vector/ranking.h"
#include "qorvex/vector/sign_tests.h"
#include "qorvex/vector/sorting.h"
#include "qorvex/vector/transforms.h"

namespace qorvex::inline QorvexFinVector {

using QorvexVector::AddToVector;
using QorvexVector::AddValue2Vector;
using QorvexVector::AddVectors;
using QorvexVector::AppendValue2Vector;
using QorvexVector::ClearVector;
using QorvexVector::CopyVector;
using QorvexVector::DeleteValueFromVector;
using QorvexVector::FillVector;
using QorvexVector::LinearTransformVector;
using QorvexVector::MaxVector;
using QorvexVector::MinMaxVector;
using QorvexVector::MinVector;
using QorvexVector::QSortVector;
using QorvexVector::ReverseVector;
using QorvexVector::SortedVector;
using QorvexVector::SubtractFromVector;
using QorvexVector::SubtractVectors;
using QorvexVector::SumVector;
using QorvexVector::Vector2Rank;
using QorvexVector::Vector2RankValue;
using QorvexVector::Vector2RankVector;
using QorvexVector::VectorNonNegative;
using QorvexVector::VectorNonZero;
using QorvexVector::VectorPositive;
using QorvexVector::VectorZero;

}  // namespace qorvex::inline QorvexFinVector
