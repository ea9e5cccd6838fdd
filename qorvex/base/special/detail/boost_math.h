#pragma once

/// @file
/// How Boost.Math is called. Only sources of the base library include this.

#include <boost/math/policies/policy.hpp>
#include <cmath>
#include <exception>
#include <new>

#include "qorvex/base/errors.h"

namespace qorvex::special {

/// No promotion: long double is the widest hardware type. Overflow returns infinity, which Evaluate
/// turns into our error.
using BoostPolicy = boost::math::policies::policy<
    boost::math::policies::promote_float<false>, boost::math::policies::promote_double<false>,
    boost::math::policies::overflow_error<boost::math::policies::ignore_error>>;
inline constexpr BoostPolicy kBoostPolicy;

/// The value of a Boost.Math expression; what it throws becomes our error.
template <class Expression>
Extended Evaluate(Expression expression) {
  Extended value = 0;
  try {
    value = expression();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    throw EInvalidOp();
  }
  if (std::isinf(value)) throw EOverflow();
  return value;
}

}  // namespace qorvex::special
