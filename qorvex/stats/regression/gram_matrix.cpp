#include "qorvex/stats/regression/gram_matrix.h"

#include <algorithm>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/exact/exact_sum.h"
#include "qorvex/stats/regression/detail/polynomial_sums.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex {

using exact::BigInteger;
using exact::Dyadic;

struct GramMatrix::Batch {
  std::size_t rows;
  std::vector<Dyadic> sums;
  std::vector<int> decimals;
};

namespace {

using Block = std::vector<VectorView<Extended>>;

Dyadic PowerOfTen(int exponent) {
  return Dyadic(BigInteger::PowerOfTen(static_cast<unsigned>(exponent)));
}

// Rows are converted and added so many at a time.
constexpr std::size_t kBlockRows = 16384;

void RequireWeights(const ColumnView& weights) {
  std::vector<Extended> buffer;
  for (std::size_t first = 0; first < weights.Size(); first += kBlockRows) {
    const std::size_t count = std::min(kBlockRows, weights.Size() - first);
    for (const Extended weight : weights.Read(first, count, buffer))
      QorvexVector::detail::RequireWeight(weight);
  }
}

// Calls use(block) with the columns of kBlockRows rows at a time, without those whose last element,
// the weight, is 0. The number of rows used.
template <class Use>
std::size_t ForEachBlock(const std::vector<ColumnView>& columns, bool has_weights, Use use) {
  std::vector<std::vector<Extended>> buffers(columns.size());
  Block block(columns.size());
  std::size_t rows = 0;
  for (std::size_t first = 0; first < columns.front().Size(); first += kBlockRows) {
    const std::size_t count = std::min(kBlockRows, columns.front().Size() - first);
    for (std::size_t c = 0; c < columns.size(); ++c)
      block[c] = columns[c].Read(first, count, buffers[c]);
    if (has_weights && std::ranges::find(block.back(), 0) != block.back().end()) {
      for (std::size_t c = 0; c < columns.size(); ++c) {
        std::vector<Extended> used;
        for (std::size_t i = 0; i < count; ++i) {
          if (block.back()[i] != 0) used.push_back(block[c][i]);
        }
        // The weights are the last to be replaced.
        buffers[c] = std::move(used);
        block[c] = buffers[c];
      }
    }
    rows += block.back().size();
    use(block);
  }
  return rows;
}

// The sums of w z_i z_j over blocks. The first column may be the constant 1, which is not in the
// blocks; the weights are the last one there.
class BlockSums {
 public:
  BlockSums(std::size_t constants, std::size_t size, bool has_weights)
      : constants_(constants), has_weights_(has_weights), products_(size), columns_(size) {
    for (auto& row : products_) row.resize(size);
  }

  void Add(const Block& block) {
    rows_ += block.front().size();
    for (std::size_t j = 0; j < products_.size(); ++j) {
      if (IsSample(0, j)) columns_[j].Add(block[j - 1]);
      for (std::size_t i = 0; i <= j; ++i) {
        if (!IsSample(i, j)) AddProduct(block, i, j);
      }
    }
  }

  // EInvalidOp if a value was not finite.
  [[nodiscard]] Dyadic Value(std::size_t i, std::size_t j) const {
    if (IsSample(i, j)) return columns_[j].PowerSum(i == 0 ? 1 : 2).Numerator();
    if (j < constants_ && !has_weights_) return rows_;
    if (!products_[i][j].IsFinite()) throw EInvalidOp();
    return products_[i][j].Value();
  }

 private:
  // A sum of values or of squares, of which a sample has both for little more than one.
  [[nodiscard]] bool IsSample(std::size_t i, std::size_t j) const {
    return constants_ == 1 && !has_weights_ && j > 0 && (i == 0 || i == j);
  }

  void AddProduct(const Block& block, std::size_t i, std::size_t j) {
    ExactSum& sum = products_[i][j];
    const auto column = [&](std::size_t k) { return block[k - constants_]; };
    if (i >= constants_) {
      if (has_weights_) {
        sum.AddProduct(column(i), column(j), block.back());
      } else {
        sum.AddProduct(column(i), column(j));
      }
    } else if (has_weights_) {
      if (j >= constants_) {
        sum.AddProduct(column(j), block.back());
      } else {
        sum.Add(block.back());
      }
    }
  }

  std::size_t constants_;
  bool has_weights_;
  std::size_t rows_ = 0;
  std::vector<std::vector<ExactSum>> products_;
  std::vector<ExactSample<2>> columns_;
};

}  // namespace

GramMatrix::GramMatrix(const ModelForm& form) : form_(form), decimals_(form.Predictors() + 2) {
  sums_.resize(Slot(Size() - 1, Size() - 1) + 1);
}

std::size_t GramMatrix::Slot(std::size_t i, std::size_t j) const {
  if (i > j) std::swap(i, j);
  if (!form_.is_polynomial) return j * (j + 1) / 2 + i;
  const std::size_t response = Size() - 1;
  const std::size_t lowest = 1 - form_.Constants();
  if (j < response) return i + j + 2 * lowest;
  const std::size_t power = i < response ? i + lowest : form_.terms + 1;
  return regression::PolynomialSums::ResponseSlot(form_.terms, power);
}

int GramMatrix::Decimals(std::size_t i) const {
  if (i == Size() - 1) return decimals_[form_.Predictors()];
  if (!form_.is_polynomial) return i < form_.Constants() ? 0 : decimals_[i - form_.Constants()];
  return static_cast<int>(i + 1 - form_.Constants()) * decimals_.front();
}

GramMatrix::Batch GramMatrix::SumsOf(const Columns& predictors, const ColumnView& response,
                                     const ColumnView* weights) const {
  if (predictors.Size() != form_.Predictors()) RaiseMathError(rsSameDimensions);
  std::vector<ColumnView> columns(predictors.begin(), predictors.end());
  columns.push_back(response);
  if (weights != nullptr) columns.push_back(*weights);
  for (const ColumnView& column : columns) {
    if (column.Size() != response.Size()) RaiseMathError(rsSameDimensions);
  }
  if (weights != nullptr) RequireWeights(*weights);

  Batch batch{.rows = 0, .sums = {}, .decimals = {}};
  for (const ColumnView& column : columns) batch.decimals.push_back(column.Decimals());
  batch.decimals.resize(decimals_.size());
  if (form_.is_polynomial) {
    regression::PolynomialSums sums(form_.terms);
    batch.rows = ForEachBlock(columns, weights != nullptr, [&](const Block& block) {
      sums.Add(block[0], block[1], weights != nullptr ? block[2] : VectorView<Extended>());
    });
    batch.sums = sums.Values();
    return batch;
  }

  BlockSums sums(form_.Constants(), Size(), weights != nullptr);
  batch.rows =
      ForEachBlock(columns, weights != nullptr, [&](const Block& block) { sums.Add(block); });
  batch.sums.resize(sums_.size());
  for (std::size_t j = 0; j < Size(); ++j) {
    for (std::size_t i = 0; i <= j; ++i) batch.sums[Slot(i, j)] = sums.Value(i, j);
  }
  return batch;
}

void GramMatrix::Combine(Batch batch, bool subtract) {
  if (subtract && batch.rows > rows_) RaiseMathError(rsInvalidValue);
  GramMatrix other(form_);
  other.sums_ = std::move(batch.sums);
  other.decimals_ = std::move(batch.decimals);
  std::vector<int> decimals(decimals_.size());
  std::ranges::transform(decimals_, other.decimals_, decimals.begin(),
                         [](int a, int b) { return std::max(a, b); });
  other.Rescale(decimals);
  Rescale(decimals);
  for (std::size_t i = 0; i < sums_.size(); ++i) {
    if (subtract) {
      sums_[i] -= other.sums_[i];
    } else {
      sums_[i] += other.sums_[i];
    }
  }
  rows_ = subtract ? rows_ - batch.rows : rows_ + batch.rows;
}

void GramMatrix::Rescale(const std::vector<int>& decimals) {
  if (decimals == decimals_) return;
  GramMatrix wanted(form_);
  wanted.decimals_ = decimals;
  const auto scale = [](const GramMatrix& gram, std::size_t i, std::size_t j) {
    return gram.Decimals(i) + gram.Decimals(j) + gram.WeightDecimals();
  };
  for (std::size_t j = 0; j < Size(); ++j) {
    for (std::size_t i = 0; i <= j; ++i) {
      wanted.sums_[Slot(i, j)] = Sum(i, j) * PowerOfTen(scale(wanted, i, j) - scale(*this, i, j));
    }
  }
  sums_ = std::move(wanted.sums_);
  decimals_ = decimals;
}

void GramMatrix::Add(const Columns& predictors, const ColumnView& response,
                     const ColumnView* weights) {
  Combine(SumsOf(predictors, response, weights), false);
}

void GramMatrix::Remove(const Columns& predictors, const ColumnView& response,
                        const ColumnView* weights) {
  Combine(SumsOf(predictors, response, weights), true);
}

void GramMatrix::Merge(const GramMatrix& other) {
  if (!(other.form_ == form_)) RaiseMathError(rsSameDimensions);
  Combine({.rows = other.rows_, .sums = other.sums_, .decimals = other.decimals_}, false);
}

}  // namespace qorvex
