#pragma once

#include <cstdint>
#include <span>

namespace qorvex::inline QorvexVector::detail {

// Writes the quotients, rounded to the nearest integers, ties to even. Those that an int32 cannot
// hold give its smallest value. For divisors from 2 to 2^20.
void DivideToInt32(std::span<const std::int64_t> dividends, std::int32_t divisor,
                   std::int32_t* quotients) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
