#include "qorvex/base/currency_text.h"

#include <iomanip>
#include <random>
#include <sstream>

#include "support/test.h"

#ifdef QORVEX_HAS_FMT
#include <fmt/ranges.h>

#include "qorvex/base/currency_format.h"
#endif

namespace qorvex {

// The digits of the stored integer with a point inserted.
template <class C>
std::string TextByInsertion(C amount, std::size_t decimals) {
  std::string text = std::to_string(amount.stored());
  const std::size_t sign = amount.stored() < 0 ? 1 : 0;
  if (text.size() - sign <= decimals) text.insert(sign, decimals + 1 + sign - text.size(), '0');
  return text.insert(text.size() - decimals, ".");
}

template <class C, class Read>
void ExpectRoundTrips(std::size_t decimals, Read read) {
  using Stored = typename C::StoredType;
  constexpr Stored smallest = std::numeric_limits<Stored>::min();
  std::vector<Stored> values{smallest, smallest + 1, std::numeric_limits<Stored>::max()};
  for (Stored value = -1'000'101; value <= 1'000'101; value += 101) values.push_back(value);
  std::mt19937_64 engine(13);
  for (int i = 0; i < 10'000; ++i)
    values.push_back(static_cast<Stored>(static_cast<Stored>(engine()) >> engine() % 32));
  for (const Stored value : values) {
    const std::string text = Currency2EStr(C(value));
    ASSERT_EQ(text, TextByInsertion(C(value), decimals));
    ASSERT_EQ(read(text), C(value)) << text;
  }
}

TEST(CurrencyText, RoundTripsExactly) {
  ExpectRoundTrips<QorCurrency>(2, Str2QorCurrency);
  ExpectRoundTrips<Currency>(4, Str2Currency);
  ExpectRoundTrips<QorLongCurrency>(6, Str2QorLongCurrency);
}

TEST(CurrencyText, RoundsDecimalsHalfToEvenInEveryNotation) {
  const struct {
    const char* text;
    std::int64_t stored;
  } cases[] = {
      {" +7\t", 70'000},
      {"-.5", -5'000},
      {"1.5e3", 15'000'000},
      {"0e999999999999", 0},
      {"9e-999999999999", 0},
      {"0.00015", 2},
      {"-0.00025", -2},
      {"0.000250000000000000000000000000000000000000000001", 3},
      {"0.00024999999999999999999999999999999999999999999", 2},
      {"5e-5", 0},
      {"1.99995", 20'000},
      {"10000000000000000000000e-22", 10'000},
      {"922337203685477.58074999", INT64_MAX},
      {"-922337203685477.58085", INT64_MIN},
  };
  for (const auto& [text, stored] : cases) EXPECT_EQ(Str2Currency(text).stored(), stored) << text;
}

// The grammar is that of Str2Float, without infinities and NaN.
TEST(CurrencyText, RefusesTextThatIsNotAnAmountInRange) {
  for (const char* text : {"", "nan", "inf", "$1", "1.2.3"})
    EXPECT_ERROR(Str2Currency(text), EConvertError, rsNotANumber);
  for (const char* text : {"922337203685477.58075", "-922337203685477.580850001", "1e15",
                           "-18446744073709551616", "1e999999999999"})
    EXPECT_ERROR(Str2Currency(text), EConvertError, rsNumberTooLarge);
  EXPECT_EQ(Str2QorCurrency("-21474836.485"), QorCurrency(INT32_MIN));
  EXPECT_ERROR(Str2QorCurrency("21474836.475"), EConvertError, rsNumberTooLarge);
}

TEST(CurrencyText, StreamsWithWidthAndFill) {
  std::ostringstream out;
  out << std::setfill('*') << std::setw(9) << QorCurrency(-1205) << std::left << std::setw(8)
      << std::showpos << std::setprecision(1) << Currency(12'345) << QorLongCurrency(1);
  EXPECT_EQ(out.str(), "***-12.051.2345**0.000001");
}

#ifdef QORVEX_HAS_FMT
TEST(CurrencyText, FormatsLikeAString) {
  const QorCurrency amount(-1205);
  EXPECT_EQ(fmt::format("{}|{:>8}|{:.^10}|{:{}}|", amount, amount, amount, Currency(1), 7),
            "-12.05|  -12.05|..-12.05..|0.0001 |");
  EXPECT_EQ(fmt::format("{}", std::vector{amount, QorCurrency(7)}), "[-12.05, 0.07]");
  for (const char* refused : {"{:.2}", "{:>9.2}", "{:.>9.2}", "{:.{}}", "{:?}", "{:d}", "{:+}"})
    EXPECT_THROW(static_cast<void>(fmt::format(fmt::runtime(refused), amount, 2)),
                 fmt::format_error)
        << refused;
}
#endif

}  // namespace qorvex
