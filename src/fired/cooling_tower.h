#pragma once

#include "sizewright/rotating/gas_machine.h"

namespace sizewright {

/// A cooling tower, sized for its air as a compressor is for its gas, with the same slots and
/// texts: without expanders, averages over the streams, intercooler and the warning of several
/// inlets. A single item writes its number, too, and driver power goes by its plain slot whatever
/// the category.
class CCoolTwObj : public GasMachine {
 public:
  using GasMachine::GasMachine;

 protected:
  [[nodiscard]] const GasMachineVariant& variant() const override;
};

}  // namespace sizewright
