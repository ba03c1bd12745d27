// The text of a plant file, followed by a zero byte and the order of the operations: it is read or
// refused with one line, and its items are driven.
#include <algorithm>
#include <memory>
#include <sstream>
#include <string_view>

#include "operations.h"
#include "sizewright/embedded/embedded_host.h"
#include "sizewright/embedded/item_run.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright::fuzz {
namespace {

void run(std::string_view text, Bytes& bytes) {
  std::unique_ptr<Plant> plant;
  try {
    plant = readPlant(text, "fuzz", equipmentClassNames());
  } catch (const InputError& fault) {
    if (std::string_view(fault.what()).find('\n') != std::string_view::npos) __builtin_trap();
    return;
  }
  std::ostringstream written;
  writePlant(*plant, written);
  EmbeddedHost host(*plant);
  const std::size_t items = std::min<std::size_t>(plant->items.size(), 4);
  for (std::size_t i = 0; i < items; ++i) {
    try {
      ItemRun item(host, plant->items[i]);
      drive(item.object(), findEquipmentClass(item.className())->initialize, bytes);
    } catch (const InputError&) {
      continue;  // an item whose class is not available
    }
  }
}

}  // namespace
}  // namespace sizewright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::size_t end = std::min(all.find('\0'), size);
  sizewright::fuzz::Bytes bytes({data + end, size - end});
  sizewright::fuzz::run(all.substr(0, end), bytes);
  return 0;
}
