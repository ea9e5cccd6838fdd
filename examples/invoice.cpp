#include <cstddef>
#include <iomanip>
#include <iostream>

#include "qorvex/base/currency_arithmetic.h"
#include "qorvex/base/currency_literals.h"
#include "qorvex/vector/QorvexFinVector.h"

using namespace qorvex;

int main() {
  constexpr const char* kGoods[] = {"Washers", "Steel sheets", "Hinges"};
  constexpr int kQuantities[] = {137, 3, 7};
  constexpr QorCurrency kFreight = 9.90_qor_currency;
  constexpr RoundingMode kCommercial = RoundingMode::kToNearestAway;
  const TQorCurrencyVector prices = Text2QorCurrencyVector({"0.0347", "12.495", "3.335"});

  // A price has four decimals, and so has any multiple of it: nothing is rounded here.
  auto lines = CopyVector(prices);
  for (std::size_t i = 0; i < lines.size(); ++i)
    lines[i] = CheckedMultiply(lines[i], kQuantities[i]);

  // The freight is divided in proportion to the lines, without losing a cent.
  const TQorCurrVector freight = Allocate(kFreight, lines);
  auto cents = TQorCurrVector::WithLength(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    cents[i] = RoundAmount<QorCurrency>(lines[i], kCommercial);
    std::cout << std::setw(12) << kGoods[i] << std::setw(5) << kQuantities[i] << " x"
              << std::setw(8) << prices[i] << " =" << std::setw(8) << lines[i] << ", rounded"
              << std::setw(6) << cents[i] << ", freight" << std::setw(5) << freight[i] << '\n';
  }

  // Two ways to compute the total in cents: add rounded lines, or add exact lines and round once.
  const QorCurrency totals[] = {CheckedSum(cents),
                                RoundAmount<QorCurrency>(CheckedSum(lines), kCommercial)};
  constexpr const char* kWays[] = {"Sum of the rounded lines", "Rounded sum of the lines"};
  for (std::size_t i = 0; i < 2; ++i) {
    const QorCurrency net = totals[i] + kFreight;
    const QorCurrency tax = MultiplyAmount(net, 25, 100, kCommercial);
    std::cout << kWays[i] << ' ' << totals[i] << ", with freight " << net << ", 25 % tax " << tax
              << ", to pay " << net + tax << " in";
    for (const QorCurrency instalment : Allocate(net + tax, {1, 1, 1}))
      std::cout << ' ' << instalment;
    std::cout << '\n';
  }
  std::cout << "The totals differ by " << abs(totals[1] - totals[0]) << '\n';
}
