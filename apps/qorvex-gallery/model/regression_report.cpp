#include "apps/qorvex-gallery/model/regression_report.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "apps/common/figure_format.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/regression/linear_model.h"
#include "qorvex/stats/regression/pair_fit.h"

namespace qorvex::gallery {

namespace {

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

QString TextOrDash(Extended figure) {
  return std::isnan(figure) ? Dash() : ExactText(figure);
}

QPointF Point(Extended x, Extended y) {
  return {static_cast<double>(x), static_cast<double>(y)};
}

// "x³"
QString Power(const QString& name, std::size_t exponent) {
  static const QString digits = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹");
  QString text = name;
  if (exponent == 1) return text;
  for (const QChar digit : QString::number(exponent)) text += digits[digit.digitValue()];
  return text;
}

bool AllFinite(const LinearFit& fit) {
  const auto finite = [](Extended figure) { return std::isfinite(figure); };
  return std::ranges::all_of(fit.Values(), finite) && finite(fit.ResidualSumOfSquares()) &&
         finite(fit.TotalSumOfSquares());
}

// A polynomial from its values at Chebyshev points, fast enough for a million rows: J.-P. Berrut
// and L. N. Trefethen, Barycentric Lagrange interpolation, 2004. Powers of x would lose the digits
// that all x have in common.
class Interpolation {
 public:
  Interpolation(const LinearFit& fit, std::size_t degree, Extended least, Extended greatest) {
    const Extended middle = least / 2 + greatest / 2;
    for (std::size_t k = 0; k <= degree; ++k) {
      const Extended angle =
          std::numbers::pi_v<Extended> * static_cast<Extended>(k) / static_cast<Extended>(degree);
      const Extended x = middle + (greatest - middle) * std::cos(angle);
      const Extended weight = k == 0 || k == degree ? 0.5L : 1;
      nodes_.push_back({x, fit.Predict({x}).value, k % 2 == 0 ? weight : -weight});
    }
  }

  Extended operator()(Extended x) const {
    Extended sum = 0, weights = 0;
    for (const Node& node : nodes_) {
      if (x == node.x) return node.value;
      const Extended share = node.weight / (x - node.x);
      sum += share * node.value;
      weights += share;
    }
    return sum / weights;
  }

 private:
  struct Node {
    Extended x, value, weight;
  };

  std::vector<Node> nodes_;
};

// The fitted values of rows with one predictor, and with several.
TQorFloatVector Fitted(const LinearFit& fit, std::size_t degree, const TQorFloatVector& x) {
  const auto [least, greatest] = std::ranges::minmax(x);
  const Interpolation curve(fit, degree, least, greatest);
  TQorFloatVector fitted;
  for (const Extended value : x) fitted.Append(curve(value));
  return fitted;
}

TQorFloatVector Fitted(const LinearFit& fit,
                       const std::vector<RegressionData::Column>& predictors) {
  TQorFloatVector middles;
  for (const RegressionData::Column& column : predictors) {
    const auto [least, greatest] = std::ranges::minmax(column.values);
    middles.Append(least / 2 + greatest / 2);
  }
  const Extended at_middles = fit.Predict(middles).value;
  const TQorFloatVector coefficients = fit.Values();
  TQorFloatVector fitted;
  for (std::size_t row = 0; row < predictors[0].values.size(); ++row) {
    Extended value = at_middles;
    for (std::size_t i = 0; i < predictors.size(); ++i)
      value += coefficients[i + 1] * (predictors[i].values[row] - middles[i]);
    fitted.Append(value);
  }
  return fitted;
}

Columns ViewsOf(const std::vector<RegressionData::Column>& columns) {
  std::vector<ColumnView> views;
  for (const RegressionData::Column& column : columns) views.emplace_back(column.values);
  return views;
}

}  // namespace

RegressionReport::RegressionReport(const RegressionData& data)
    : degree_(data.predictors.size() == 1 ? data.degree : 1) {
  TakeCompleteRows(data);
  if (predictors_.empty()) {
    why_not_ = tr("A regression needs a predictor.");
    return;
  }
  try {
    Fit();
  } catch (const EInvalidOp&) {
    why_not_ = tr("The values must be finite.");
  } catch (const CollinearityError& error) {
    why_not_ = WhyCollinear(error.Predictor());
  } catch (const EMathError&) {
    why_not_ = WhyTooFew();
  }
}

void RegressionReport::TakeCompleteRows(const RegressionData& data) {
  for (const RegressionData::Column& column : data.predictors)
    predictors_.push_back({column.name, {}});
  response_.name = data.response.name;
  const TQorFloatVector& y = data.response.values;
  for (std::size_t row = 0; row < y.size(); ++row) {
    const auto is_missing = [row](const auto& column) { return std::isnan(column.values[row]); };
    if (std::isnan(y[row]) || std::ranges::any_of(data.predictors, is_missing)) {
      ++left_out_;
      continue;
    }
    response_.values.Append(y[row]);
    for (std::size_t i = 0; i < predictors_.size(); ++i)
      predictors_[i].values.Append(data.predictors[i].values[row]);
  }
}

void RegressionReport::Fit() {
  LinearModel model =
      degree_ > 1 ? LinearModel::Polynomial(degree_) : LinearModel(predictors_.size());
  model.Add(ViewsOf(predictors_), response_.values);
  const LinearFit fit = model.Fit();
  if (!AllFinite(fit)) {
    why_not_ =
        tr("The values are too large: the figures are beyond the range of extended precision.");
    return;
  }
  fit_ = fit;
  fitted_ =
      HasOnePredictor() ? Fitted(fit, degree_, predictors_[0].values) : Fitted(fit, predictors_);
}

QString RegressionReport::WhyTooFew() const {
  if (!HasOnePredictor()) {
    return tr("%L1 coefficients need at least as many complete rows.")
        .arg(static_cast<qulonglong>(predictors_.size() + 1));
  }
  const QString& x = predictors_[0].name;
  if (degree_ == 1) return tr("A line needs two different values of %1.").arg(x);
  if (degree_ == 2) return tr("A parabola needs three different values of %1.").arg(x);
  return tr("This polynomial needs %1 different values of %2.").arg(degree_ + 1).arg(x);
}

QString RegressionReport::WhyCollinear(std::size_t predictor) const {
  if (HasOnePredictor()) return WhyTooFew();
  const QString& name = predictors_[predictor].name;
  return predictor == 0
             ? tr("%1 has the same value in all rows.").arg(name)
             : tr("%1 depends linearly on the constant and the predictors before it.").arg(name);
}

QString RegressionReport::XTitle() const {
  if (predictors_.empty()) return {};
  return HasOnePredictor() ? predictors_[0].name : tr("Fitted: %1").arg(response_.name);
}

void RegressionReport::AddCurve(std::vector<PlotLayer>& layers) const {
  constexpr int kSteps = 120;
  const auto [least, greatest] = std::ranges::minmax(predictors_[0].values);
  PlotLayer line{PlotShape::kLine, PlotRole::kModel, tr("Fit"), {}};
  PlotLayer mean{PlotShape::kBand, PlotRole::kModel, {}, {}};
  PlotLayer single = mean;
  std::vector<QPointF> upper_mean, upper_single;
  for (int i = 0; i <= kSteps; ++i) {
    // The difference of the ends may be beyond the range of extended precision.
    const Extended at = std::lerp(least, greatest, static_cast<Extended>(i) / kSteps);
    const Prediction predicted = fit_->Predict({at});
    line.points.push_back(Point(at, predicted.value));
    mean.points.push_back(Point(at, predicted.confidence.least));
    upper_mean.push_back(Point(at, predicted.confidence.greatest));
    single.points.push_back(Point(at, predicted.prediction.least));
    upper_single.push_back(Point(at, predicted.prediction.greatest));
  }
  mean.points.insert(mean.points.end(), upper_mean.rbegin(), upper_mean.rend());
  single.points.insert(single.points.end(), upper_single.rbegin(), upper_single.rend());
  if (fit_->DegreesOfFreedom() > 0) {
    layers.push_back(std::move(single));
    layers.push_back(std::move(mean));
  }
  layers.push_back(std::move(line));
}

std::vector<PlotLayer> RegressionReport::Curve() const {
  std::vector<PlotLayer> layers;
  if (!fit_ && !HasOnePredictor()) return layers;
  const TQorFloatVector& x = HasOnePredictor() ? predictors_[0].values : fitted_;
  if (fit_ && HasOnePredictor()) AddCurve(layers);
  if (!HasOnePredictor()) {
    const auto [least, greatest] = std::ranges::minmax(x);
    layers.push_back({PlotShape::kLine,
                      PlotRole::kModel,
                      tr("Response equal to fit"),
                      {Point(least, least), Point(greatest, greatest)}});
  }
  PlotLayer rows{PlotShape::kPoints, PlotRole::kData, tr("Data"), {}};
  for (std::size_t i = 0; i < x.size(); ++i)
    rows.points.push_back(Point(x[i], response_.values[i]));
  layers.push_back(std::move(rows));
  return layers;
}

std::vector<PlotLayer> RegressionReport::Residuals() const {
  if (!fit_) return {};
  const TQorFloatVector& x = HasOnePredictor() ? predictors_[0].values : fitted_;
  const auto [least, greatest] = std::ranges::minmax(x);
  PlotLayer points{PlotShape::kPoints, PlotRole::kData, {}, {}};
  for (std::size_t i = 0; i < x.size(); ++i)
    points.points.push_back(Point(x[i], response_.values[i] - fitted_[i]));
  return {{PlotShape::kLine, PlotRole::kGuide, {}, {Point(least, 0), Point(greatest, 0)}},
          std::move(points)};
}

QStringList RegressionReport::Terms() const {
  QStringList terms = {tr("Constant")};
  for (const RegressionData::Column& column : predictors_) {
    for (std::size_t power = 1; power <= degree_; ++power) terms += Power(column.name, power);
  }
  return terms;
}

QList<QStringList> RegressionReport::CoefficientRows() const {
  QList<QStringList> rows = {{QString(), tr("Estimate"), tr("Standard error"), tr("Lower 95 %"),
                              tr("Upper 95 %"), tr("p")}};
  const QStringList terms = Terms();
  for (qsizetype i = 0; i < terms.size(); ++i) {
    if (!fit_) {
      rows.append({terms[i], Dash(), Dash(), Dash(), Dash(), Dash()});
      continue;
    }
    const auto index = static_cast<std::size_t>(i);
    const FittedCoefficient of = fit_->Coefficient(index);
    const Interval<Extended> interval = fit_->ConfidenceInterval(index);
    rows.append({terms[i], ExactText(of.value), RoundedText(of.standard_error, of.standard_error),
                 RoundedText(interval.least, of.standard_error),
                 RoundedText(interval.greatest, of.standard_error),
                 ProbabilityText(of.p, of.log_p)});
  }
  return rows;
}

QList<QStringList> RegressionReport::QualityRows() const {
  const auto exact = [this](Extended (LinearFit::*figure)() const) {
    return fit_ ? TextOrDash((*fit_.*figure)()) : Dash();
  };
  const auto probability = [this] {
    if (!fit_) return Dash();
    const AnovaTest test = fit_->Anova().regression;
    return ProbabilityText(test.p, test.log_p);
  };
  QList<QStringList> rows = {
      {tr("Complete rows"), ExactText(static_cast<Extended>(response_.values.size()))},
      {tr("Sum of squared errors"), exact(&LinearFit::ResidualSumOfSquares)},
      {tr("Residual standard deviation"), exact(&LinearFit::ResidualStdDev)},
      {tr("Coefficient of determination"), exact(&LinearFit::Determination)},
      {tr("Adjusted coefficient of determination"), exact(&LinearFit::AdjustedDetermination)},
      {tr("p of the whole fit"), probability()}};
  if (HasOnePredictor()) {
    rows.append({tr("Correlation of x and y"),
                 fit_ ? TextOrDash(FitPairs(predictors_[0].values, response_.values).correlation)
                      : Dash()});
  }
  return rows;
}

}  // namespace qorvex::gallery
