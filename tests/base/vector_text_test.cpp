#include "qorvex/base/vector_text.h"

#include <algorithm>
#include <iomanip>
#include <locale>
#include <random>
#include <sstream>

#include "support/failing_allocation.h"
#include "support/test.h"

#ifdef QORVEX_HAS_FMT
#include "qorvex/base/vector_format.h"
#endif

namespace qorvex {

template <class T>
class EveryElement : public ::testing::Test {};
using Elements = ::testing::Types<Extended, double, float, std::int64_t, std::uint32_t,
                                  std::int32_t, std::uint16_t, std::int16_t, std::uint8_t,
                                  std::int8_t, Currency, QorCurrency, QorLongCurrency>;
TYPED_TEST_SUITE(EveryElement, Elements);

// Every exponent is equally likely, also that of subnormal numbers and of infinities.
template <class T>
T RandomElement(std::mt19937_64& engine) {
  using Limits = std::numeric_limits<T>;
  if constexpr (FloatElement<T>) {
    const int least = Limits::min_exponent - Limits::digits - 64;
    const auto exponents = static_cast<std::uint64_t>(Limits::max_exponent - 62 - least);
    const T mantissa = static_cast<T>(static_cast<std::int64_t>(engine()));
    return std::ldexp(mantissa, least + static_cast<int>(engine() % exponents));
  } else if constexpr (CurrencyElement<T>) {
    return T(static_cast<typename T::StoredType>(engine()));
  } else {
    return static_cast<T>(engine());
  }
}

template <class T>
bool AreIdentical(const TQorVector<T>& a, const TQorVector<T>& b) {
  return std::ranges::equal(a, b, [](T x, T y) {
    if constexpr (FloatElement<T>) {
      return std::isnan(x) ? std::isnan(y) : x == y && std::signbit(x) == std::signbit(y);
    }
    return x == y;
  });
}

TYPED_TEST(EveryElement, ComesBackFromItsText) {
  using Limits = std::numeric_limits<TypeParam>;
  std::mt19937_64 engine(2026);
  TQorMatrix<TypeParam> matrix(3);
  for (int i = 0; i < 5000; ++i) matrix[1].push_back(RandomElement<TypeParam>(engine));
  matrix.push_back({Limits::lowest(), Limits::max(), Limits::min(), Limits::denorm_min()});
  if constexpr (FloatElement<TypeParam>)
    matrix.push_back({-Limits::infinity(), -TypeParam(0), Limits::quiet_NaN()});
  std::stringstream stream;
  stream << matrix << matrix[1] << TQorMatrix<TypeParam>() << TQorVector<TypeParam>();
  TQorMatrix<TypeParam> copy;
  TQorMatrix<TypeParam> none(1);
  TQorVector<TypeParam> row;
  TQorVector<TypeParam> empty(1);
  ASSERT_TRUE(stream >> copy >> row >> none >> empty);
  EXPECT_TRUE(std::ranges::equal(copy, matrix, AreIdentical<TypeParam>));
  EXPECT_TRUE(AreIdentical(row, matrix[1]) && none.empty() && empty.empty());
  EXPECT_TRUE(Matrix2Str(Str2Matrix<TypeParam>(Matrix2Str(copy))) == Matrix2Str(matrix));
}

TEST(VectorText, IsShortestInTheTypeOfTheElements) {
  EXPECT_EQ(Vector2Str(TQorSingleVector{0.1F, 1e20F, -0.0F}), "[0.1, 1e+20, -0]");
  EXPECT_EQ(Vector2Str(TQorDoubleVector{0.1, 1.0 / 3}), "[0.1, 0.3333333333333333]");
  EXPECT_EQ(Vector2Str(std::vector{0.1L, 1.0L / 3}), "[0.1, 0.33333333333333333334]");
  EXPECT_EQ(Vector2Str(Str2Vector<float>("[-NaN, +inf]")), "[nan, inf]");
  EXPECT_EQ(Vector2Str(TQorByteVector{65, 255}), "[65, 255]");
  EXPECT_EQ(Vector2Str(TQorCurrencyVector{Currency(-5), Currency(0)}), "[-0.0005, 0.0000]");
}

TEST(VectorText, AlignsColumnsAtTheDecimalPoint) {
  EXPECT_EQ(Matrix2Str(TQorFloatMatrix{{1, 2.5L}, {30, 4}}), "[[ 1, 2.5],\n [30, 4  ]]");
  EXPECT_EQ(Matrix2Str(TQorDoubleMatrix{{1e300, 2.5e-7}, {}, {-12.25}, {kNaN, 10, 7}}),
            "[[  1e+300,  2.5e-07],\n [],\n [-12.25  ],\n [nan     , 10      , 7]]");
  EXPECT_EQ(Matrix2Str(TQorSIntMatrix{{1, -128}, {10, 5}},
                       {.alignment = ElementFormat::Alignment::kLeft}),
            "[[1 , -128],\n [10, 5   ]]");
}

TEST(VectorText, HonoursTheSettingsOfAStream) {
  struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };
  const auto written = [](const auto& array, auto... settings) {
    std::ostringstream out;
    out.imbue(std::locale(std::locale::classic(), new Comma));
    (out << ... << settings) << array;
    EXPECT_EQ(out.width(), 0);
    return out.str();
  };
  const TQorDoubleVector v{-1234.5, 0.125, -0.004};
  EXPECT_EQ(written(v, std::hex, std::uppercase), "[-1234.5, 0.125, -0.004]");
  EXPECT_EQ(written(v, std::fixed, std::setprecision(2)), "[-1234.50, 0.12, 0.00]");
  EXPECT_EQ(written(v, std::scientific), "[-1.234500e+03, 1.250000e-01, -4.000000e-03]");
  EXPECT_EQ(written(v, std::setprecision(3)), "[-1.23e+03, 0.125, -0.004]");
  EXPECT_EQ(written(v, std::setw(7), std::setfill('*'), std::showpos),
            "[-1234.5, *+0.125, *-0.004]");
  EXPECT_EQ(written(v, std::setw(8), std::left), "[-1234.5 , 0.125   , -0.004  ]");
  EXPECT_EQ(written(TQorCurrVector{QorCurrency(7)}, std::setprecision(1), std::showpos), "[+0.07]");
  EXPECT_EQ(written(TQorFloatMatrix{{2, 0.5L}, {1.5L}}, std::setw(4), std::setfill('0')),
            "[[02  , 00.5],\n [01.5]]")
      << "fills up no decimals";
  EXPECT_EQ(::testing::PrintToString(TQorDoubleVector{1.0 / 3}), "[0.3333333333333333]");
  EXPECT_EQ(::testing::PrintToString(TQorFloatMatrix{{1}, {}}), "[[1],\n []]");
}

TEST(VectorText, IsReadWithAnyWhiteSpaceAndRoundedOnce) {
  EXPECT_EQ(Str2Matrix<float>("\n[\t[+1 ,\r\n-.5],[ ] ]\f"), (TQorSingleMatrix{{1, -0.5F}, {}}));
  // Just above the point between two numbers, to which extended precision rounds it.
  EXPECT_EQ(Str2Vector<double>("[1.00000000000000011102230246251565404236316680908203125000001]"),
            TQorDoubleVector{1 + std::numeric_limits<double>::epsilon()});
  EXPECT_EQ(Str2Vector<float>("[1e-50, -INF, 5.]"), (TQorSingleVector{0, -INFINITY, 5}));
  EXPECT_EQ(Str2Vector<QorCurrency>("[0.125]"), TQorCurrVector{QorCurrency(12)});
}

TEST(VectorText, NamesThePieceThatCannotBeReadAndItsPosition) {
  using Case = std::tuple<const char*, MessageId, const char*>;
  for (const auto& [text, id, message] : std::initializer_list<Case>{
           {"", rsUnexpectedEnd, "The text ends too early (character 1)"},
           {"[1, 2\n", rsUnexpectedEnd, "The text ends too early (character 7)"},
           {" 1, 2]", rsUnexpectedText, "\"1\" is unexpected (character 2)"},
           {"[1 22 3]", rsUnexpectedText, "\"22\" is unexpected (character 4)"},
           {"[1,]", rsUnexpectedText, "\"]\" is unexpected (character 4)"},
           {"[[1]]", rsUnexpectedText, "\"[\" is unexpected (character 2)"},
           {"[1]]", rsUnexpectedText, "\"]\" is unexpected (character 4)"},
           {"[1, 1.5]", rsNotAnInteger, "\"1.5\" is not an integer (character 5)"},
           {"[127, 128]", rsNumberTooLarge, "\"128\" is too large a number (character 7)"}}) {
    try {
      static_cast<void>(Str2Vector<std::int8_t>(text));
      ADD_FAILURE() << text;
    } catch (const EConvertError& error) {
      EXPECT_EQ(error.message_id(), id) << text;
      EXPECT_STREQ(error.what(), message);
    }
  }
  EXPECT_ERROR(Str2Vector<std::int8_t>("[-128, -129]"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Str2Vector<std::int64_t>("[99999999999999999999]"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Str2Vector<std::int64_t>("[99999999999999999999x]"), EConvertError, rsNotAnInteger);
  for (const char* text : {"[1-]", "[nan(1)]", "[+-1]", "[0x1]", "[1e]", "[.]"})
    EXPECT_ERROR(Str2Vector<double>(text), EConvertError, rsNotANumber);
  EXPECT_ERROR(Str2Vector<double>("[1e309]"), EConvertError, rsNumberTooLarge);
  EXPECT_ERROR(Str2Matrix<float>("[[1], 3e38, [1]]"), EConvertError, rsUnexpectedText);
  EXPECT_ERROR(Str2Vector<std::uint32_t>("[-0, -1]"), EConvertError, rsNumberTooLarge);
}

TEST(VectorText, ReadingFromAStreamStopsAtTheBracketAndFailsWithoutAChange) {
  TQorLIntVector v{7};
  std::istringstream in(" [1, 2]] 3 [4.5] [[5]] [6");
  EXPECT_TRUE(in >> v);
  EXPECT_EQ(v, (TQorLIntVector{1, 2}));
  for (const char* rest : {"] 3 ", "", "[5]] ", ""}) {
    EXPECT_FALSE(in >> v);
    EXPECT_EQ(v, (TQorLIntVector{1, 2}));
    in.clear();
    in.ignore(static_cast<std::streamsize>(std::strlen(rest)));
  }
}

TEST(VectorText, StreamsKeepTheirRulesForExceptions) {
  constexpr auto bad = std::ios_base::badbit;
  constexpr auto fail = std::ios_base::failbit;
  struct Broken : std::streambuf {
    char text[3] = {'[', '1', ','};
    int_type underflow() override {
      if (gptr() != nullptr) throw std::bad_alloc();
      setg(text, text, text + 3);
      return '[';
    }
  };
  const auto raises = [](auto operation) {
    try {
      operation();
      return false;
    } catch (const std::bad_alloc&) {
      return true;
    }
  };
  TQorDoubleVector v{7};
  for (const auto& [exceptions, rethrows] : {std::pair(fail, false), std::pair(bad | fail, true)}) {
    Broken buffer;
    std::istream in(&buffer);
    in.exceptions(exceptions);
    EXPECT_EQ(raises([&] { in >> v; }), rethrows);
    EXPECT_EQ(in.rdstate(), bad);
    std::ostringstream out;
    out.exceptions(exceptions);
    out.width(9);
    testing::allocations_left = 0;
    EXPECT_EQ(raises([&] { out << v; }), rethrows);
    EXPECT_TRUE(out.rdstate() == bad && out.width() == 0);
    std::istringstream text("[1, x]");
    text.exceptions(exceptions);
    EXPECT_THROW(text >> v, std::ios_base::failure);
    EXPECT_EQ(text.rdstate(), fail);
  }
  EXPECT_EQ(v, TQorDoubleVector{7});
}

#ifdef QORVEX_HAS_FMT
TEST(VectorText, FormatsEachElement) {
  const TQorDoubleMatrix m{{1, 2.5}, {30, -0.04}};
  EXPECT_EQ(fmt::format("{}", m), Matrix2Str(m));
  EXPECT_EQ(fmt::format("{:+.1f}", m), "[[ +1.0, +2.5],\n [+30.0, +0.0]]");
  EXPECT_EQ(fmt::format("{:*^5}|{:<3d}|{:>10.1e}", m[0], TQorByteVector{1, 2}, m[1]),
            "[**1**, *2.5*]|[1  , 2  ]|[   3.0e+01,   -4.0e-02]");
  EXPECT_EQ(fmt::format("{:.2}{:g}", m[1], m[1]), "[30, -0.04][30, -0.04]");
  EXPECT_EQ(fmt::format("{:}>5", m[0]), "[1, 2.5]>5");
  EXPECT_EQ(fmt::format("{}", std::vector{m[0], m[0]}), "[[1, 2.5], [1, 2.5]]");
  for (const char* refused :
       {"{:010}", "{:.}", "{:x}", "{:d}", "{:{>5}", "{:L}", "{:5 }", "{:9999999999}"})
    EXPECT_THROW(static_cast<void>(fmt::format(fmt::runtime(refused), m)), fmt::format_error)
        << refused;
  EXPECT_THROW(static_cast<void>(fmt::format(fmt::runtime("{:.2}"), TQorLIntVector())),
               fmt::format_error);
  EXPECT_THROW(static_cast<void>(fmt::format(fmt::runtime("{:f}"), TQorCurrVector())),
               fmt::format_error);
}
#endif

}  // namespace qorvex
