#include "qorvex/stats/Qorvex_RS_DescStats.h"
