#include "qorvex/stats/regression/linear_model.h"

#include <memory>
#include <string>

#include "qorvex/stats/regression/detail/solution.h"

namespace qorvex {

namespace {

MessageId MessageFor(const ModelForm& form) {
  if (form.is_polynomial) return rsCollinearPower;
  return form.intercept == Intercept::kIncluded ? rsCollinear : rsCollinearOrigin;
}

std::string TextFor(MessageId id, std::size_t predictor) {
  std::string text = MessageText(id);
  constexpr std::string_view placeholder = "%1";
  if (const std::size_t at = text.find(placeholder); at != std::string::npos)
    text.replace(at, placeholder.size(), std::to_string(predictor + 1));
  return text;
}

}  // namespace

CollinearityError::CollinearityError(const ModelForm& form, std::size_t predictor)
    : EMathError(MessageFor(form), TextFor(MessageFor(form), predictor)), predictor_(predictor) {}

CollinearityError::~CollinearityError() = default;

LinearModel::LinearModel(std::size_t predictors, Intercept intercept)
    : LinearModel(ModelForm{predictors, false, intercept}) {}

LinearModel LinearModel::Polynomial(std::size_t degree, Intercept intercept) {
  // A line needs no powers, whose sums take longer.
  return LinearModel(ModelForm{degree, degree != 1, intercept});
}

void LinearModel::Add(const Columns& predictors, const ColumnView& response) {
  gram_.Add(predictors, response, nullptr);
}

void LinearModel::AddWeighted(const Columns& predictors, const ColumnView& response,
                              const ColumnView& weights) {
  gram_.Add(predictors, response, &weights);
}

void LinearModel::Remove(const Columns& predictors, const ColumnView& response) {
  gram_.Remove(predictors, response, nullptr);
}

void LinearModel::RemoveWeighted(const Columns& predictors, const ColumnView& response,
                                 const ColumnView& weights) {
  gram_.Remove(predictors, response, &weights);
}

void LinearModel::Merge(const LinearModel& other) {
  gram_.Merge(other.gram_);
}

LinearFit LinearModel::Fit() const {
  if (Count() < gram_.Form().Coefficients()) RaiseMathError(rsVectorTooSmall);
  return LinearFit(std::make_shared<const regression::Solution>(regression::Solve(gram_)));
}

}  // namespace qorvex
