#include <array>

#include "sizewright/host/text.h"
#include "sizewright/rotating/pump.h"

namespace sizewright {

namespace {

enum class Category { any, only, notThis, neitherDcpNorEgp };

// Rating limits of the evaluation engine, in GPM.
struct RatingRow {
  Category test;
  std::string_view category;
  std::string_view item;
  double lower;  // 0 for none
  double raisedTo;
  double upper;  // 0 for none
  double loweredTo;
  double divisor;
};

constexpr auto kRatings = std::to_array<RatingRow>({
    {Category::only, "DCP", "GEN SERV", 0, 0, 16000, 16000, 16040},
    {Category::only, "DCP", "ANSI", 0, 0, 16000, 16000, 16040},
    {Category::only, "EGP", "CANNED RTR", 310.8, 310.8, 4550, 4550, 4571},
    {Category::neitherDcpNorEgp, "", "GEAR", 0, 0, 2400, 2400, 2406},
    {Category::neitherDcpNorEgp, "", "MECH SEAL", 275, 275, 38450, 38450, 38450},
    {Category::only, "EP", "DIAPHRAGM", 150.4, 150.4, 4810, 4810, 4810},
    {Category::notThis, "EP", "DUPLEX", 0, 0, 8020, 8020, 8020},
    {Category::any, "", "RECIP MOTR", 40.1, 40.1, 0, 0, 0},
    {Category::any, "", "ROTARY", 80.2, 80.2, 6015, 6015, 6015},
    {Category::any, "", "SIMPLEX", 44.11, 44.11, 7298.2, 7298, 7298},
    {Category::any, "", "SLURRY", 12.03, 12, 200, 200, 200},
    {Category::any, "", "TRIPLEX", 0, 0, 8020, 8020, 8020},
});

bool fits(const RatingRow& row, std::string_view category, std::string_view item) {
  if (!sameWord(item, row.item)) return false;
  switch (row.test) {
    case Category::only:
      return sameWord(category, row.category);
    case Category::notThis:
      return !sameWord(category, row.category);
    case Category::neitherDcpNorEgp:
      return !sameWord(category, "DCP") && !sameWord(category, "EGP");
    case Category::any:
      break;
  }
  return true;
}

}  // namespace

void limitPumpRating(std::string_view category, std::string_view item, double& capacity,
                     double& number) {
  for (const RatingRow& row : kRatings) {
    if (!fits(row, category, item)) continue;
    if (row.lower > 0.0 && capacity <= row.lower) capacity = row.raisedTo;
    if (row.upper > 0.0 && capacity > row.upper) {
      number = capacity / row.divisor;
      capacity = row.loweredTo;
    }
    return;
  }
}

}  // namespace sizewright
