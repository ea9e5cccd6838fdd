#include "apps/common/column_view.h"

namespace qorvex::apps {

ColumnView ViewOf(const ColumnNumbers& numbers) {
  if (numbers.AreDecimal()) return {numbers.Integers(), numbers.Decimals()};
  // The vector shares the buffer of the column.
  return numbers.Values();
}

}  // namespace qorvex::apps
