#include "sizewright/rotating/compressor.h"

namespace sizewright {

const GasMachineVariant& CCompObj::variant() const {
  static constexpr GasMachineVariant kVariant = {
      .expanders = true,
      .warnsOfSeveralInlets = true,
      .streamAverages = true,
      .intercooler = true,
      .powerSlot = slotOf("CpDriverPower"),
      .countWritten = When::aboveOne,
  };
  return kVariant;
}

}  // namespace sizewright
