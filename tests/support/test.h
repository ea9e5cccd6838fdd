#pragma once

/// @file
/// Definitions for most tests of the numerics.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/base/vector_types.h"

namespace qorvex {

inline constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();
inline constexpr Extended kInfinity = std::numeric_limits<Extended>::infinity();

/// The element types of typed tests.
using FloatTypes = ::testing::Types<Extended, double, float>;
using WideTypes =
    ::testing::Types<Extended, double, float, std::int64_t, std::uint32_t, std::int32_t>;
using AllTypes =
    ::testing::Types<Extended, double, float, std::int64_t, std::uint32_t, std::int32_t,
                     std::uint16_t, std::int16_t, std::uint8_t, std::int8_t>;
using CurrencyTypes = ::testing::Types<Currency, QorCurrency, QorLongCurrency>;

/// Expects that the statement raises an error of exactly this type with this message.
#define EXPECT_ERROR(statement, Type, id)                           \
  do {                                                              \
    try {                                                           \
      static_cast<void>(statement);                                 \
      ADD_FAILURE() << #statement " raised nothing";                \
    } catch (const qorvex::Exception& error) {                      \
      EXPECT_EQ(typeid(error), typeid(qorvex::Type)) << #statement; \
      EXPECT_EQ(error.message_id(), id) << error.what();            \
    }                                                               \
  } while (false)

#define EXPECT_MATH_ERROR(statement, id) EXPECT_ERROR(statement, EMathError, id)

}  // namespace qorvex
