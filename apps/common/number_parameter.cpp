#include "apps/common/number_parameter.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/base/text.h"

namespace qorvex::apps {

std::string NumberParameter::Description() const {
  return std::string("The ") + name + (has_default ? ". Default: " + Float2Str(start) : "");
}

const char* WhatIsWrong(Extended value, NumberKind kind) {
  const auto is_whole = [value](Extended largest) {
    return value >= 0 && value <= largest && value == std::floor(value);
  };
  if (!std::isfinite(value)) return "is not a finite number";
  switch (kind) {
    case NumberKind::kReal:
    case NumberKind::kReals:
      break;
    case NumberKind::kPositive:
      if (!(value > 0)) return "is not greater than 0";
      return std::isnormal(value) ? nullptr
                                  : "is below 3.362103143112093506e-4932, the smallest number with "
                                    "all digits";
    case NumberKind::kShape:
    case NumberKind::kDegreesOfFreedom:
      return value >= 1e-17L && value <= 1e15L ? nullptr : "is not from 1e-17 to 1e15";
    case NumberKind::kShare:
      return value >= 0 && value <= 1 ? nullptr : "is not from 0 to 1";
    case NumberKind::kProbability:
      return value > 0 && value < 1 ? nullptr : "is not between 0 and 1";
    case NumberKind::kSteps:
      return is_whole(kMostPoints - 1) ? nullptr : "is not a whole number from 0 to 9999999";
    case NumberKind::kInt32:
      return is_whole(std::numeric_limits<std::int32_t>::max())
                 ? nullptr
                 : "is not a whole number from 0 to 2147483647";
    case NumberKind::kCount:
      return is_whole(std::numeric_limits<std::uint32_t>::max())
                 ? nullptr
                 : "is not a whole number from 0 to 4294967295";
    case NumberKind::kInt64:
      return is_whole(std::numeric_limits<std::int64_t>::max())
                 ? nullptr
                 : "is not a whole number from 0 to 9223372036854775807";
    case NumberKind::kUint64:
      return is_whole(std::numeric_limits<std::uint64_t>::max())
                 ? nullptr
                 : "is not a whole number from 0 to 18446744073709551615";
  }
  return nullptr;
}

const char* WhatIsWrongWithEnds(Extended lower, Extended upper) {
  if (!(upper > lower)) return "--upper-end must be greater than --lower-end";
  return std::isfinite(upper - lower)
             ? nullptr
             : "--upper-end less --lower-end is beyond the range of extended precision";
}

}  // namespace qorvex::apps
