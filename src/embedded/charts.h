#pragma once

#include "sizewright/embedded/fluid_data.h"

namespace sizewright {

/// Value of a chart at (x, y): linear in x, linear in the logarithm of y, held at the ends of both.
/// 0 when the chart is empty, has rows of the wrong length, x or y that do not rise, or several y
/// that are not all above 0; 0 for an argument that is not a number.
double chartValue(const Chart& chart, double x, double y);

}  // namespace sizewright
