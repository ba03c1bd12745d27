#pragma once

#include <cmath>
#include <cstdint>

namespace sizewright {

/// When a load may be split into several identical units.
enum class SplitWhen : std::uint8_t {
  always,
  oneUnit,    // the number of units is exactly 1
  atMostOne,  // the number of units is 1 or less
};

/// Range of sizes that one unit can have. A smaller load is raised; a greater one is split into
/// several identical units.
struct UnitLimit {
  double lower = 0.0;         // 0: no lower limit
  double raisedTo = 0.0;      // what a load below becomes; 0: the lower limit
  double upper = 0.0;         // 0: no upper limit
  double dividedBy = 0.0;     // units = ceiling of load / this; 0: the upper limit
  double loweredTo = 0.0;     // what a load above becomes; 0: the upper limit
  bool raiseAtLower = false;  // a load of exactly the lower limit is raised, too
  bool splitAtUpper = false;  // a load of exactly the upper limit is split, too
  bool keepsLoad = false;     // a split leaves the load of all units together
  SplitWhen split = SplitWhen::always;
};

/// Brings a load within the limit of one unit; `units` is set by a split only.
inline void applyLimit(const UnitLimit& limit, double& load, double& units) {
  const auto orElse = [](double value, double otherwise) {
    return value > 0.0 ? value : otherwise;
  };
  const bool below = load < limit.lower || (limit.raiseAtLower && load == limit.lower);
  if (limit.lower > 0.0 && below) load = orElse(limit.raisedTo, limit.lower);

  const bool above = load > limit.upper || (limit.splitAtUpper && load == limit.upper);
  const bool may = limit.split == SplitWhen::always ||
                   (limit.split == SplitWhen::oneUnit && units == 1.0) ||
                   (limit.split == SplitWhen::atMostOne && units <= 1.0);
  if (!(limit.upper > 0.0) || !above || !may) return;
  units = std::ceil(load / orElse(limit.dividedBy, limit.upper));
  if (!limit.keepsLoad) load = orElse(limit.loweredTo, limit.upper);
}

}  // namespace sizewright
