#include "qorvex/stats/regression/linear_model.h"

#include <iostream>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/stats/regression/pair_fit.h"

using namespace qorvex;

int main() {
  // The growth of plants in centimetres, by hours of light and litres of water a day.
  const std::vector<double> light{2.5, 3.1, 4.0, 4.4, 5.2, 5.9, 6.3, 7.1, 7.7, 8.6};
  const std::vector<double> water{1.0, 3.5, 2.0, 4.5, 1.5, 3.0, 5.0, 2.5, 4.0, 0.5};
  const std::vector<double> height{10.2, 15.9, 14.1, 20.8, 15.0, 19.4, 24.6, 20.1, 24.7, 19.0};
  LinearModel model(2);
  model.Add({light, water}, height);
  const LinearFit fit = model.Fit();
  for (const FittedCoefficient& b : fit.Coefficients()) {
    std::cout << Float2EStr(b.value, 4) << " +- " << Float2EStr(b.standard_error, 4) << ", t "
              << Float2EStr(b.t, 2) << ", p " << Float2EStr(b.p, 7) << '\n';
  }
  const RegressionAnova anova = fit.Anova();
  std::cout << "R squared " << Float2EStr(fit.Determination(), 4) << ", F "
            << Float2EStr(anova.regression.f, 2) << ", ln p "
            << Float2EStr(anova.regression.log_p, 2) << '\n';
  const Prediction next = fit.Predict({6, 2.25L}, 0.95L);
  std::cout << "Six hours and 2.25 litres: " << Float2EStr(next.value, 2) << ", the next plant "
            << Float2EStr(next.prediction.least, 2) << " to "
            << Float2EStr(next.prediction.greatest, 2) << '\n';

  // Rows come and go; the fit is the same as that of the rows that stay.
  model.Add({{100.0L}, {0.0L}}, {5.0L});
  model.Remove({{100.0L}, {0.0L}}, {5.0L});
  std::cout << std::boolalpha << (model.Fit().Values() == fit.Values()) << '\n';

  // A parabola through years, and decimal data: 23 tenths are 2.3 exactly.
  const std::vector<int> year{2000, 2005, 2010, 2015, 2020, 2025};
  const std::vector<std::int64_t> tenths{23, 31, 43, 63, 85, 114};
  const PairFit parabola = FitPairs(year, ColumnView(tenths, 1), 2);
  std::cout << "Parabola:";
  for (const Extended b : parabola.curve.Values()) std::cout << ' ' << Float2Str(b);
  std::cout << "\nCorrelation " << Float2EStr(parabola.correlation, 4)
            << ", bits that the years cost: " << Float2EStr(parabola.curve.ConditionBits(), 1)
            << '\n';

  // Three groups with the same mean?
  const OneWayAnovaTable table =
      OneWayAnova({{4.1L, 3.9L, 4.4L}, {4.8L, 5.1L, 4.9L}, {4.0L, 4.2L, 4.1L}});
  std::cout << "F " << Float2EStr(table.between.f, 2) << ", p " << Float2EStr(table.between.p, 4)
            << '\n';

  try {
    LinearModel dependent(2);
    dependent.Add({light, light}, height);
    static_cast<void>(dependent.Fit());
  } catch (const CollinearityError& error) {
    std::cout << error.what() << '\n';
  }
}
