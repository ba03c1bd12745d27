#include "sizewright/host/rating.h"

#include <cstring>

#include "sizewright/host/fixed_text.h"
#include "sizewright/host/host.h"

namespace sizewright {

std::optional<RatingResults> RatingService::results(Program, std::string_view) const {
  return std::nullopt;
}
bool RatingService::sizeAirCooler(CStrList&, CStrList&, CStrList&, CStrList&, bool) {
  return false;
}

namespace {

using Results = std::optional<RatingResults>;

void copyText(const std::string& text, char* out) {
  const FixedText<64> kept(text);
  std::memcpy(out, kept.c_str(), kept.capacity());
}

bool get(const Results& results, std::optional<int> RatingResults::*field, int& value) {
  if (!results || !((*results).*field)) return false;
  value = *((*results).*field);
  return true;
}

bool get(const Results& results, std::optional<Measure> RatingResults::*field, double& value,
         char* units) {
  if (!results || !((*results).*field)) return false;
  value = ((*results).*field)->value;
  copyText(((*results).*field)->units, units);
  return true;
}

using R = RatingResults;

}  // namespace

CTHRXTOSKINTOUTObj::CTHRXTOSKINTOUTObj(const char* file)
    : results_(currentHost().rating().results(RatingService::Program::shellAndTube, file)) {}

bool CTHRXTOSKINTOUTObj::Get_diag_numoffatalerrors(int& count) const {
  return get(results_, &R::errors, count);
}
bool CTHRXTOSKINTOUTObj::Get_geox_numdatapts(int& count) const {
  return get(results_, &R::dataPoints, count);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Shell_type_TEMA(char* type) const {
  if (!results_ || !results_->shellType) return false;
  copyText(*results_->shellType, type);
  return true;
}
bool CTHRXTOSKINTOUTObj::Get_geox_Shell_numExch_parallel(int& count) const {
  return get(results_, &R::shellsInParallel, count);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Shell_numExch_series(int& count) const {
  return get(results_, &R::shellsInSeries, count);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Tube_length(double& length, char* units) const {
  return get(results_, &R::tubeLength, length, units);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Shell_dia(double& diameter, char* units) const {
  return get(results_, &R::shellDiameter, diameter, units);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Bundle_numtubepasses(int& count) const {
  return get(results_, &R::tubePasses, count);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Bundle_numtubes(int& count) const {
  return get(results_, &R::tubes, count);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Tube_outsidedia(double& diameter, char* units) const {
  return get(results_, &R::tubeOutsideDiameter, diameter, units);
}
bool CTHRXTOSKINTOUTObj::Get_geox_Tube_pitch(double& pitch, char* units) const {
  return get(results_, &R::tubePitch, pitch, units);
}

CTHRXMIREINTOUTObj::CTHRXMIREINTOUTObj(const char* file)
    : results_(currentHost().rating().results(RatingService::Program::plateFin, file)) {}

bool CTHRXMIREINTOUTObj::Get_cont_numoferrors(int& count) const {
  return get(results_, &R::errors, count);
}
bool CTHRXMIREINTOUTObj::Get_geox_numdatapts(int& count) const {
  return get(results_, &R::dataPoints, count);
}
bool CTHRXMIREINTOUTObj::Get_geox_ExchLength(double& length, char* units) const {
  return get(results_, &R::coreLength, length, units);
}
bool CTHRXMIREINTOUTObj::Get_geox_ExchWidth(double& width, char* units) const {
  return get(results_, &R::coreWidth, width, units);
}
bool CTHRXMIREINTOUTObj::Get_geox_ExchDepth(double& depth, char* units) const {
  return get(results_, &R::coreDepth, depth, units);
}
bool CTHRXMIREINTOUTObj::Get_geox_ExchVolume(double& volume, char* units) const {
  return get(results_, &R::coreVolume, volume, units);
}

int DoAirCoolerSizing(CStrList& names, CStrList& values, CStrList& warnings, CStrList& errors,
                      int mayShowMessages) {
  return currentHost().rating().sizeAirCooler(names, values, warnings, errors, mayShowMessages != 0)
             ? 1
             : 0;
}

}  // namespace sizewright
