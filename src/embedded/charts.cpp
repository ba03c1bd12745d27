#include "sizewright/embedded/charts.h"

#include <algorithm>
#include <cmath>

namespace sizewright {

namespace {

// Two neighbours on an axis and the share of the second.
struct Place {
  std::size_t low = 0;
  std::size_t high = 0;
  double share = 0.0;
};

bool rises(const std::vector<double>& axis) {
  return std::adjacent_find(axis.begin(), axis.end(),
                            [](double a, double b) { return !(a < b); }) == axis.end();
}

bool isSound(const Chart& chart) {
  if (chart.x.empty() || chart.y.empty() || chart.z.size() != chart.x.size()) return false;
  if (!rises(chart.x) || !rises(chart.y)) return false;
  if (chart.y.size() > 1 && !(chart.y.front() > 0.0)) return false;
  return std::all_of(chart.z.begin(), chart.z.end(), [&chart](const std::vector<double>& row) {
    return row.size() == chart.y.size();
  });
}

// `scale` is what the share is linear in; it is asked only between the ends of the axis.
template <class Scale>
Place placeOf(const std::vector<double>& axis, double value, Scale scale) {
  const std::size_t last = axis.size() - 1;
  if (!(value > axis.front())) return {0, 0, 0.0};
  if (!(value < axis.back())) return {last, last, 0.0};
  const auto above = std::upper_bound(axis.begin(), axis.end(), value);
  const auto high = static_cast<std::size_t>(above - axis.begin());
  const double low = scale(axis[high - 1]);
  return {high - 1, high, (scale(value) - low) / (scale(axis[high]) - low)};
}

double between(double a, double b, double share) {
  return share > 0.0 ? a + share * (b - a) : a;
}

}  // namespace

double chartValue(const Chart& chart, double x, double y) {
  if (!isSound(chart) || std::isnan(x) || std::isnan(y)) return 0.0;
  const Place i = placeOf(chart.x, x, [](double value) { return value; });
  const Place j = placeOf(chart.y, y, [](double value) { return std::log10(value); });
  const double value =
      between(between(chart.z[i.low][j.low], chart.z[i.low][j.high], j.share),
              between(chart.z[i.high][j.low], chart.z[i.high][j.high], j.share), i.share);
  return std::isfinite(value) ? value : 0.0;
}

}  // namespace sizewright
