#include "sizewright/fired/cooling_tower.h"

namespace sizewright {

const GasMachineVariant& CCoolTwObj::variant() const {
  static constexpr GasMachineVariant kVariant = {
      .powerSlot = "CpDriverPower",
      .countWritten = When::positive,
  };
  return kVariant;
}

}  // namespace sizewright
