#pragma once

#include <gtest/gtest.h>

#include "qorvex/base/errors.h"

/// Expects that the statement raises an error of exactly the given type with the given message.
#define EXPECT_ERROR(statement, Type, id)                           \
  do {                                                              \
    try {                                                           \
      static_cast<void>(statement);                                 \
      ADD_FAILURE() << #statement " raised nothing";                \
    } catch (const qorvex::Exception& error) {                      \
      EXPECT_EQ(typeid(error), typeid(qorvex::Type)) << #statement; \
      EXPECT_EQ(error.message_id(), qorvex::id) << error.what();    \
    }                                                               \
  } while (false)

#define EXPECT_MATH_ERROR(statement, id) EXPECT_ERROR(statement, EMathError, id)
