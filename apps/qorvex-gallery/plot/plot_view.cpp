#include "apps/qorvex-gallery/plot/plot_view.h"
