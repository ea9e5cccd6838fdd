#include "qorvex/base/comparisons.h"

namespace qorvex::inline QorvexGlobals {

Extended QorTolerance = 1.0e-15L;

}  // namespace qorvex::inline QorvexGlobals
