#include <cstddef>
#include <iomanip>
#include <iostream>

#include "qorvex/base/currency_text.h"
#include "qorvex/vector/QorvexFinVector.h"

using namespace qorvex;

int main() {
  constexpr const char* kGoods[] = {"Washers", "Steel sheets", "Hinges"};
  constexpr int kQuantities[] = {137, 3, 7};
  const TQorCurrencyVector prices = {Str2Currency("0.0347"), Str2Currency("12.495"),
                                     Str2Currency("3.335")};

  // A price has four decimals, and so has any multiple of it: nothing is rounded here.
  auto lines = CopyVector(prices);
  for (std::size_t i = 0; i < lines.size(); ++i) lines[i] *= kQuantities[i];
  const TQorCurrVector cents = Vector2QorCurrVector(lines);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::cout << std::setw(12) << kGoods[i] << std::setw(5) << kQuantities[i] << " x"
              << std::setw(8) << prices[i] << " =" << std::setw(8) << lines[i] << ", rounded"
              << std::setw(6) << cents[i] << '\n';
  }

  // Two ways to compute the total in cents: add rounded lines, or add exact lines and round once.
  const TQorCurrVector net = {SumVector(cents), Currency2QorCurrency(SumVector(lines))};

  // A quarter of a whole number of cents has at most four decimals, so only the result is rounded.
  auto exact_tax = Vector2QorCurrencyVector(net);
  LinearTransformVector(exact_tax, 0.25L, 0);
  const TQorCurrVector tax = Vector2QorCurrVector(exact_tax);
  const TQorCurrVector gross = AddVectors(net, tax);

  constexpr const char* kWays[] = {"Sum of the rounded lines", "Rounded sum of the lines"};
  for (std::size_t i = 0; i < net.size(); ++i) {
    std::cout << kWays[i] << ' ' << net[i] << ", tax " << exact_tax[i] << " -> " << tax[i]
              << ", to pay " << gross[i] << '\n';
  }
  std::cout << "The net totals differ by " << Currency2EStr(net[1] - net[0]) << '\n';
}
