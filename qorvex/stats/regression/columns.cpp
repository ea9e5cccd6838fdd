#include "qorvex/stats/regression/columns.h"

#include "qorvex/base/errors.h"

namespace qorvex {

ColumnView::ColumnView(VectorView<std::int64_t> integers, int decimals)
    : ColumnView(integers.data(), integers.size()) {
  if (decimals < 0 || decimals > kMaxDecimals) RaiseMathError(rsInvalidValue);
  decimals_ = decimals;
}

std::span<const Extended> ColumnView::Read(std::size_t first, std::size_t count,
                                           std::vector<Extended>& buffer) const {
  if (read_ == nullptr) return {static_cast<const Extended*>(data_) + first, count};
  buffer.resize(count);
  read_(data_, first, buffer);
  return buffer;
}

}  // namespace qorvex
