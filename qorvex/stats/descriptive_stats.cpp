#include "qorvex/stats/descriptive_stats.h"
