// What a program gets that includes the header of the unit only.

#include <gtest/gtest.h>

#include "qorvex/random/QorvexRandom.h"

TEST(UnitHeader, BringsTheSeedAndTheErrors) {
  qorvex::SetRandSeed(3);
  const qorvex::Extended first = qorvex::Random_Normal();
  qorvex::SetRandSeed(3);
  EXPECT_EQ(qorvex::Random_Normal(), first);
  try {
    static_cast<void>(qorvex::Random_T(0));
    ADD_FAILURE();
  } catch (const qorvex::EMathError& error) {
    EXPECT_EQ(error.message_id(), qorvex::rsInvalidValue);
  }
}
