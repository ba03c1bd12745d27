#pragma once

#include "sizewright/frame/size_equip.h"

namespace sizewright {

// Solid flows of streams, as the solids equipment reads them. All mass flows in LB/H, densities in
// PCF, volume flows in CFH. A value that a stream lacks counts as 0. A record that holds the slots
// of a stream is read like one.

/// Simulator type whose streams tell solids by their ratio to the liquor.
inline constexpr VD_SIMULATOR_TYPE kLiquorRatioSimulator = 7;

/// Density of solids where a stream does not tell it, PCF.
inline constexpr double kSolidDensity = 93.6;

/// The stream's "SOLID MASS FLOW". False, with `flow` untouched, when it is absent or 0.
bool readSolidFlow(const CSizeEquip& item, CvdValueObject& stream, double& flow);
/// "TOTAL MASS FLOW" less "LIQUID MASS FLOW" less "VAPOR MASS FLOW"; 0 when that is not above
/// `negligible`.
double solidFlowByDifference(const CSizeEquip& item, CvdValueObject& stream,
                             double negligible = 0.0);
/// "SOLID FRACTION" times "TOTAL MASS FLOW"; 0 when the total is not positive.
double solidFlowByFraction(const CSizeEquip& item, CvdValueObject& stream);
/// "SUSPENDED SOLID TO LIQUOR RATIO" times "LIQUID MASS FLOW"; 0 when either is not positive.
double solidFlowByLiquorRatio(const CSizeEquip& item, CvdValueObject& stream);
/// The stream's "SOLID MASS DENSITY", or that of common solids.
double readSolidDensity(const CSizeEquip& item, CvdValueObject& stream);
/// Flow over density; 0 when either is not positive.
double solidVolume(double flow, double density);

}  // namespace sizewright
