#include <algorithm>
#include <array>
#include <cmath>

#include "sizewright/host/text.h"
#include "sizewright/host/units.h"
#include "sizewright/separation/filter.h"
#include "sizewright/separation/limits.h"

namespace sizewright {

namespace {

constexpr double kQuarterPi = 0.7853981634;
constexpr double kConeAngle = 0.2617993878;  // 15 degrees

using D = FilterData;

enum class Body : std::uint8_t { plain, basket, bowl };
enum class Given : std::uint8_t { positive, notZero };  // diameters that count as given

// A load of exactly the limit is split, too, into one unit.
constexpr UnitLimit splitAt(double limit, SplitWhen when = SplitWhen::always) {
  return {.upper = limit, .splitAtUpper = true, .split = when};
}

struct CentrifugeRow {
  std::string_view item;
  double D::*load;
  UnitLimit limit;
  double (*diameter)(double load);
  double least;  // INCHES
  Given given = Given::positive;
  bool raisesGiven = false;  // a given diameter is raised to the least, too
  Body body = Body::plain;
  double usualLength = 0.0;    // INCHES; of a basket that is sized here
  double leastCapacity = 0.0;  // CF; likewise
};

constexpr CentrifugeRow batch(std::string_view item, double limit, double least,
                              double usualLength = 0.0, double leastCapacity = 0.0) {
  return {.item = item,
          .load = &D::solid_mass_flow,
          .limit = splitAt(limit),
          .diameter = basketDiameter,
          .least = least,
          .body = Body::basket,
          .usualLength = usualLength,
          .leastCapacity = leastCapacity};
}

constexpr CentrifugeRow continuous(std::string_view item, double limit, Body body) {
  return {.item = item,
          .load = &D::liquid_flow,
          .limit = splitAt(limit),
          .diameter = bowlDiameter,
          .least = 18.0,
          .given = Given::notZero,
          .body = body};
}

constexpr auto kCentrifuges = std::to_array<CentrifugeRow>({
    {.item = "TUBULAR",
     .load = &D::liquid_flow,
     .limit = splitAt(30.0),
     .diameter = tubularDiameter,
     .least = 4.0,
     .raisesGiven = true},
    {.item = "DISK",
     .load = &D::liquid_flow,
     .limit = splitAt(160.0, SplitWhen::atMostOne),
     .diameter = diskDiameter,
     .least = 10.0,
     .raisesGiven = true},
    batch("BATCH TOP", 14000.0, 20.0),
    batch("BATCH BOTM", 13000.0, 20.0),
    batch("BATCH AUTO", 15000.0, 24.0),
    batch("INVERTING", 15000.0, 12.0),
    batch("BOT UNLOAD", 15500.0, 12.0),
    batch("TOP UNLOAD", 15500.0, 18.0, 14.0, 2.0),
    continuous("SOLID BOWL", 500.0, Body::bowl),
    continuous("SCREEN BWL", 500.0, Body::bowl),
    continuous("RECIP CONV", 500.0, Body::plain),
    continuous("SCROLL CON", 475.0, Body::plain),
    {.item = "VIBRATORY",
     .load = &D::liquid_flow,
     .limit = splitAt(35000.0),
     .diameter = vibratoryDiameter,
     .least = 48.0,
     .given = Given::notZero},
});

constexpr auto kSlots = std::to_array<CentrifugeSlots>({
    {"SOLID BOWL", "CpBowlDiameter", "CpBowlLength"},
    {"SCREEN BWL", "CpBowlDiameter", "CpBowlLength"},
    {"VIBRATORY", "CpScreenDiameter"},
    {"TUBULAR", "CpCentrifugeDiameter", nullptr, "CpCentrifugeFlowrate"},
    {"DISK", "CpCentrifugeDiameter", nullptr, "CpCentrifugeFlowrate"},
    {"", "CpCentrifugeDiameter"},
});

double power(double base, double exponent) {
  return CSizeEquip::compiler_pow_double(base, exponent);
}

void sizeBasket(const CentrifugeRow& row, bool computed, D& data) {
  if (computed && row.usualLength > 0.0) {
    setIfZero(data.flt_length, row.usualLength);
    data.basket_capacity =
        std::max(basketCapacity(data.flt_diameter, data.flt_length), row.leastCapacity);
  }
  if (data.flt_length > 0.0 && !(data.basket_capacity > 0.0)) {
    data.basket_capacity = basketCapacity(data.flt_diameter, data.flt_length);
  }
}

void sizeBowl(D& data) {
  if (data.bowl_extra_length > 0.0 && data.flt_diameter > 0.0) {
    data.flt_length = bowlLength(data.bowl_extra_length, data.flt_diameter);
  }
  data.flt_length = usualBowlLength(data.flt_length, data.liquid_flow);
}

}  // namespace

double tubularDiameter(double liquidFlow) {
  return 3.0 + 0.1 * liquidFlow;
}

double diskDiameter(double liquidFlow) {
  return power(10.0, (liquidFlow + 160.0) / 600.0);
}

double basketDiameter(double solidFlow) {
  return power(10.0, (solidFlow + 24307.688) / 23076.92);
}

double bowlDiameter(double liquidFlow) {
  return power(10.0, (liquidFlow + 1075.0) / 928.57);
}

double vibratoryDiameter(double liquidFlow) {
  return power(10.0, (std::log10(liquidFlow) - 1.265) / 1.875);
}

double basketCapacity(double diameter, double length) {
  return power(diameter / 12.0, 2.0) * kQuarterPi * (length / 12.0);
}

double bowlLength(double straightLength, double diameter) {
  return straightLength + diameter / (std::tan(kConeAngle) * 2.0);
}

double usualBowlLength(double length, double liquidFlow) {
  if (length > 0.0) return length;
  if (liquidFlow < 200.0) return length == 0.0 ? 40.0 : length;
  // kept: 60 below 300 GPM and 72 below 350 are for a length of exactly 0, but a length of 0 ends
  // the search above, so that only a negative one comes this far and only the last step changes it
  return length == 0.0 || liquidFlow < 350.0 ? length : 96.0;
}

CentrifugeSlots centrifugeSlots(std::string_view item) {
  return *std::find_if(kSlots.begin(), kSlots.end(), [item](const CentrifugeSlots& slots) {
    return slots.item.empty() || sameWord(item, slots.item);
  });
}

void sizeCentrifuge(std::string_view item, FilterData& data) {
  const auto* const row = std::find_if(
      kCentrifuges.begin(), kCentrifuges.end(),
      [item](const CentrifugeRow& candidate) { return sameWord(item, candidate.item); });
  if (row == kCentrifuges.end()) return;

  double& load = data.*(row->load);
  applyLimit(row->limit, load, data.num_units);
  double& diameter = data.flt_diameter;
  const bool computed = row->given == Given::notZero ? diameter == 0.0 : !(diameter > 0.0);
  if (computed) diameter = row->diameter(load);
  if (computed || row->raisesGiven) diameter = std::max(diameter, row->least);
  if (row->body == Body::basket) sizeBasket(*row, computed, data);
  if (row->body == Body::bowl) sizeBowl(data);
}

void CFltObj::flt_cent_siz() {
  if (!data().liquidFlowInGpm) data().liquid_flow = converted(data().liquid_flow, "CFH", "GPM");
  data().liquidFlowInGpm = true;
  sizeCentrifuge(itemCode, data());
}

}  // namespace sizewright
