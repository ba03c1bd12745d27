#include "sizewright/separation/plain_item.h"

#include "sizewright/host/text.h"

namespace sizewright {

int CQObj::GetStreamInfo() {
  findBothStreams("INLET", "OUTLET");
  return 1;
}

int CQObj::UpdateConnectivity() {
  return rewriteBothPorts("INLET", "OUTLET");
}

int CQObj::SaveParameters() {
  if (GetEquipCatType() == EQ_CAT_SIMPLE) {
    writeDefault("CpCodeOfAccount", formatText("%d", data().codeOfAccount));
    writeDefault("CpMaterialCostPerUnit", formatText("%f", data().materialCostPerUnit));
  }
  return 1;
}

// A record that says "?" or nothing takes the default.
void CQObj::writeDefault(const char* slot, std::string_view text) {
  if (component == nullptr) return;
  SlotText present;
  lib_get_value_c_api(component.get(), slot, present.data(), "inherit");
  if (present.empty() || present.view() == "?") component->SetValue(slot, text, 0);
}

}  // namespace sizewright
