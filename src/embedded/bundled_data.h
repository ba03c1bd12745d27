#pragma once

#include <string>
#include <utility>
#include <vector>

#include "sizewright/embedded/fluid_data.h"
#include "sizewright/host/slot.h"

namespace sizewright {

/// An object with its slots, in the order of the file.
struct DataObject {
  std::string name;
  std::vector<std::pair<std::string, CvdSlot>> slots;
};

/// The data that come with the program: the files of `data/`.
struct BundledData {
  std::vector<DataObject> objects;    // of the property database
  std::vector<DataObject> utilities;  // of the utility specification file, in its order
  ChartTable charts;
  FluidTable fluids;
  DesignRules designRules;
};

/// The bundled data, read at the first call, which may come from any thread; good for the life of
/// the program. Throws std::runtime_error when a file of the program is not as it should be.
const BundledData& bundledData();

}  // namespace sizewright
