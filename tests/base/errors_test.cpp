#include "qorvex/base/errors.h"

#include <thread>

#include "qorvex/base/checked_math.h"
#include "support/test.h"

using namespace std::string_literals;

namespace qorvex {

class Messages : public ::testing::Test {
 protected:
  ~Messages() override {
    SetMessageLookup(nullptr);
    ResetMessageText(rsVectorIsEmpty);
  }
};

TEST_F(Messages, TextIsLookedUpAtTheRaise) {
  const auto raised = [] { return std::string(EMathError(rsVectorIsEmpty).what()); };
  EXPECT_EQ(raised(), "The vector is empty");
  SetMessageText(rsVectorIsEmpty, "Der Vektor ist leer");
  EXPECT_EQ(raised(), "Der Vektor ist leer");

  SetMessageLookup([](MessageId id) -> std::optional<std::string> {
    if (id != rsVectorIsEmpty) return std::nullopt;
    return "looked up, instead of " + std::to_string(MessageText(rsNA).size());
  });
  EXPECT_EQ(raised(), "looked up, instead of 13");
  SetMessageLookup(nullptr);
  EXPECT_EQ(raised(), "Der Vektor ist leer");
  ResetMessageText(rsVectorIsEmpty);
  EXPECT_EQ(raised(), "The vector is empty");
}

TEST_F(Messages, CanBeReplacedWhileOtherThreadsRaise) {
  std::jthread writer([](const std::stop_token& stop) {
    while (!stop.stop_requested()) {
      SetMessageText(rsVectorIsEmpty, "a");
      SetMessageLookup([](MessageId) { return std::optional<std::string>("b"); });
      SetMessageLookup(nullptr);
    }
  });
  for (int i = 0; i < 5000; ++i) {
    const std::string text = EMathError(rsVectorIsEmpty).what();
    ASSERT_TRUE(text == "a" || text == "b" || text == "The vector is empty") << text;
  }
}

TEST(MathError, TakesTextsAndIdentifiersOfApplications) {
  class RateError : public EMathError {
   public:
    RateError() : EMathError(MessageId{0x8001}, "The rate is above the cap") {}
  };
  const auto caught = [](auto&& error) {
    try {
      throw error;
    } catch (const EMathError& e) {
      return std::pair(e.message_id(), std::string(e.what()));
    }
  };
  EXPECT_EQ(caught(RateError()), std::pair(MessageId{0x8001}, "The rate is above the cap"s));
  EXPECT_EQ(caught(EMathError("no rate")), std::pair(rsApplication, "no rate"s));
  EXPECT_EQ(caught(EMathError(rsInvalidValue, "no rate")), std::pair(rsInvalidValue, "no rate"s));
  EXPECT_EQ(caught(EZeroDivide(rsDivideByZero)), std::pair(rsDivideByZero, "Division by zero"s));
  EXPECT_EQ(caught(EOverflow("no rate")), std::pair(rsApplication, "no rate"s));
  EXPECT_EQ(caught(EInvalidOp(rsNA, "no rate")), std::pair(rsNA, "no rate"s));
  EXPECT_EQ(EnglishMessageText(rsApplication), "");
  EXPECT_THROW(EMathError{rsApplication}, std::out_of_range);
}

static_assert(std::derived_from<EZeroDivide, EMathError>);
static_assert(std::derived_from<EConvertError, Exception>);
static_assert(!std::derived_from<EConvertError, EMathError>);

TEST(CheckedMath, RaisesTheRuntimeErrors) {
  EXPECT_ERROR(CheckedDivide(1, 0), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR(CheckedDivide(0, 0), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(CheckedDivide(kInfinity, kInfinity), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(CheckedDivide(1, 1e-4940L), EOverflow, rsOverflow);
  EXPECT_ERROR(CheckedSqrt(-1), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(CheckedLn(0), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR(CheckedLn(-1), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(CheckedExp(12000), EOverflow, rsOverflow);
  EXPECT_ERROR(CheckedXtoY(0, -1), EZeroDivide, rsZeroDivide);
  EXPECT_ERROR(CheckedXtoY(-2, 0.5L), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(CheckedXtoY(10, 5000), EOverflow, rsOverflow);
  EXPECT_ERROR(CheckedFinite(kInfinity), EOverflow, rsOverflow);
  EXPECT_ERROR(CheckedFinite(kNaN), EInvalidOp, rsInvalidOp);

  EXPECT_EQ(CheckedDivide(7, -2), -3.5L);
  EXPECT_EQ(CheckedDivide(1, kInfinity), 0);
  EXPECT_EQ(CheckedExp(kInfinity), kInfinity);
  EXPECT_EQ(CheckedXtoY(-2, 3), -8);
  for (const Extended x : {CheckedDivide(kNaN, 0), CheckedSqrt(kNaN), CheckedLn(kNaN),
                           CheckedExp(kNaN), CheckedXtoY(kNaN, 2)}) {
    EXPECT_TRUE(std::isnan(x));
  }
}

}  // namespace qorvex
