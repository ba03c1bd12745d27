#pragma once

#include "sizewright/rotating/gas_machine.h"

namespace sizewright {

/// A gas compressor, a blower or, for category "DTUR" with item "TURBOEXP", an expander: capacity,
/// compressibility, Cp/Cv, design conditions and the kind of driver. An expander is refused unless
/// its pressure falls, anything else unless it rises.
class CCompObj : public GasMachine {
 public:
  using GasMachine::GasMachine;

 protected:
  [[nodiscard]] const GasMachineVariant& variant() const override;
};

}  // namespace sizewright
