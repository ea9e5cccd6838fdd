#include "apps/qorvex-gallery/model/regression_report.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/common/figure_format.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::gallery {

namespace {

QString Text(const char* text) {
  return QCoreApplication::translate("qorvex::gallery::RegressionPage", text);
}

QString LocalText(const std::string& number) {
  return QorvexBaseControls::detail::LocalNumber(number, QLocale());
}

QString Dash() {
  return QStringLiteral("—");
}

// With the decimals that show four digits of the standard error, unless there are too many zeros.
QString RoundedText(Extended figure, Extended standard_error) {
  if (!std::isfinite(figure) || !std::isfinite(standard_error)) return Dash();
  constexpr Extended least = 1e-17L;
  constexpr Extended greatest = 1e12L;
  if (standard_error < least || standard_error > greatest) return ExactText(figure);
  const int decimals = 3 - static_cast<int>(std::floor(Log10(standard_error)));
  return LocalText(Float2EStr(figure, std::max(decimals, 0)));
}

QString ProbabilityText(Extended p, Extended log_p) {
  constexpr apps::FigureFormat format{.kind = apps::FigureFormat::Kind::kDigits, .count = 4};
  return std::isnan(p) ? Dash() : LocalText(format.Text(apps::Probability{p, log_p}));
}

bool AllFinite(const PairFit& fit) {
  const auto finite = [](Extended figure) { return std::isfinite(figure); };
  return std::ranges::all_of(fit.curve.Values(), finite) &&
         finite(fit.curve.ResidualSumOfSquares()) && finite(fit.curve.TotalSumOfSquares());
}

QPointF Point(Extended x, Extended y) {
  return {static_cast<double>(x), static_cast<double>(y)};
}

// A line or parabola from three of its points, fast enough for a million pairs. Powers of x would
// lose the digits that all x have in common.
class Interpolation {
 public:
  Interpolation(const LinearFit& fit, Extended least, Extended greatest)
      : least_(least), width_(greatest - least), start_(fit.Predict({least}).value) {
    const Extended end = fit.Predict({greatest}).value;
    const Extended middle = fit.Predict({least + width_ / 2}).value;
    bend_ = 2 * ((end - middle) - (middle - start_));
    rise_ = (end - start_) - bend_;
  }

  Extended operator()(Extended x) const {
    const Extended place = (x - least_) / width_;
    return start_ + place * (rise_ + place * bend_);
  }

 private:
  Extended least_, width_;
  Extended start_, rise_, bend_;
};

}  // namespace

RegressionReport::RegressionReport(const TQorFloatVector& x, const TQorFloatVector& y)
    : line_{Text("Line"), PlotRole::kModel}, parabola_{Text("Parabola"), PlotRole::kSecondModel} {
  for (std::size_t i = 0; i < x.size(); ++i) {
    if (std::isnan(x[i]) || std::isnan(y[i])) {
      ++left_out_;
    } else {
      x_.Append(x[i]);
      y_.Append(y[i]);
    }
  }
  if (!x_.empty()) {
    const auto [least, greatest] = std::ranges::minmax(x_);
    least_x_ = least;
    greatest_x_ = greatest;
  }
  FitCurve(line_, 1);
  FitCurve(parabola_, 2);
}

void RegressionReport::FitCurve(Curve& curve, std::size_t degree) {
  QString why;
  try {
    PairFit fit = FitPairs(x_, y_, degree);
    if (AllFinite(fit)) {
      curve.fit = std::move(fit);
      return;
    }
    why = Text("The values are too large: the figures are beyond the range of extended precision.");
  } catch (const EInvalidOp&) {
    why = Text("The values must be finite.");
  } catch (const EMathError&) {
    why = degree == 1 ? Text("A line needs two different x.")
                      : Text("A parabola needs three different x.");
  }
  if (why_not_.isEmpty()) why_not_ = why;
}

Extended RegressionReport::PlaceOf(int step, int steps) const {
  return least_x_ + (greatest_x_ - least_x_) * step / steps;
}

PlotLayer RegressionReport::Line(const Curve& curve) const {
  PlotLayer layer{PlotShape::kLine, curve.role, curve.name, {}};
  const Interpolation fitted(curve.fit->curve, least_x_, greatest_x_);
  const int steps = curve.fit->curve.Size() == 2 ? 1 : 200;
  for (int i = 0; i <= steps; ++i) {
    const Extended at = PlaceOf(i, steps);
    layer.points.push_back(Point(at, fitted(at)));
  }
  return layer;
}

PlotLayer RegressionReport::Band(const Curve& curve) const {
  PlotLayer layer{PlotShape::kBand, curve.role, {}, {}};
  constexpr int steps = 60;
  std::vector<QPointF> upper;
  for (int i = 0; i <= steps; ++i) {
    const Extended at = PlaceOf(i, steps);
    const Interval<Extended> mean = curve.fit->curve.Predict({at}).confidence;
    layer.points.push_back(Point(at, mean.least));
    upper.push_back(Point(at, mean.greatest));
  }
  layer.points.insert(layer.points.end(), upper.rbegin(), upper.rend());
  return layer;
}

std::vector<PlotLayer> RegressionReport::Curves() const {
  std::vector<PlotLayer> layers;
  for (const Curve* const curve : {&line_, &parabola_})
    if (curve->fit && curve->fit->curve.DegreesOfFreedom() > 0) layers.push_back(Band(*curve));
  for (const Curve* const curve : {&line_, &parabola_})
    if (curve->fit) layers.push_back(Line(*curve));
  PlotLayer pairs{PlotShape::kPoints, PlotRole::kData, Text("Pairs"), {}};
  for (std::size_t i = 0; i < x_.size(); ++i) pairs.points.push_back(Point(x_[i], y_[i]));
  layers.push_back(std::move(pairs));
  return layers;
}

std::vector<PlotLayer> RegressionReport::Residuals() const {
  std::vector<PlotLayer> layers;
  for (const Curve* const curve : {&line_, &parabola_}) {
    if (!curve->fit) continue;
    if (layers.empty()) {
      layers.push_back(
          {PlotShape::kLine, PlotRole::kGuide, {}, {Point(least_x_, 0), Point(greatest_x_, 0)}});
    }
    PlotLayer layer{PlotShape::kPoints, curve->role, curve->name, {}};
    const Interpolation fitted(curve->fit->curve, least_x_, greatest_x_);
    for (std::size_t i = 0; i < x_.size(); ++i)
      layer.points.push_back(Point(x_[i], y_[i] - fitted(x_[i])));
    layers.push_back(std::move(layer));
  }
  return layers;
}

QList<QStringList> RegressionReport::CoefficientRows() const {
  QList<QStringList> rows = {{QString(), Text("Estimate"), Text("Standard error"),
                              Text("Lower 95 %"), Text("Upper 95 %"), Text("p")}};
  const QString names[] = {Text("constant"), Text("coefficient of x"), Text("coefficient of x²")};
  const auto add = [&](const Curve& curve, std::size_t coefficients) {
    for (std::size_t i = 0; i < coefficients; ++i) {
      const QString label = QStringLiteral("%1, %2").arg(curve.name, names[i]);
      if (!curve.fit) {
        rows.append({label, Dash(), Dash(), Dash(), Dash(), Dash()});
        continue;
      }
      const FittedCoefficient of = curve.fit->curve.Coefficient(i);
      const Interval<Extended> interval = curve.fit->curve.ConfidenceInterval(i);
      rows.append({label, ExactText(of.value), RoundedText(of.standard_error, of.standard_error),
                   RoundedText(interval.least, of.standard_error),
                   RoundedText(interval.greatest, of.standard_error),
                   ProbabilityText(of.p, of.log_p)});
    }
  };
  add(line_, 2);
  add(parabola_, 3);
  return rows;
}

QList<QStringList> RegressionReport::QualityRows() const {
  const auto row = [this](const QString& label, auto text) {
    return QStringList{label, line_.fit ? text(*line_.fit) : Dash(),
                       parabola_.fit ? text(*parabola_.fit) : Dash()};
  };
  const auto exact = [&row](const QString& label, Extended (LinearFit::*figure)() const) {
    return row(label, [figure](const PairFit& of) {
      const Extended value = (of.curve.*figure)();
      return std::isnan(value) ? Dash() : ExactText(value);
    });
  };
  const Extended none = std::numeric_limits<Extended>::quiet_NaN();
  const Extended correlation = line_.fit ? line_.fit->correlation : none;
  return {
      {QString(), line_.name, parabola_.name},
      exact(Text("Sum of squared errors"), &LinearFit::ResidualSumOfSquares),
      exact(Text("Residual standard deviation"), &LinearFit::ResidualStdDev),
      exact(Text("Coefficient of determination"), &LinearFit::Determination),
      exact(Text("Adjusted coefficient of determination"), &LinearFit::AdjustedDetermination),
      row(Text("p of the whole fit"),
          [](const PairFit& of) {
            const AnovaTest test = of.curve.Anova().regression;
            return ProbabilityText(test.p, test.log_p);
          }),
      {Text("Correlation of x and y"), std::isnan(correlation) ? Dash() : ExactText(correlation)}};
}

}  // namespace qorvex::gallery
