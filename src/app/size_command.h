#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sizewright {

/// What `sizewright size` is asked to do.
struct SizeOptions {
  std::filesystem::path plant;
  std::vector<std::string> items;   // empty: all
  bool json = false;                // a report a line instead of a table
  bool quiet = false;               // no table, no progress
  bool verbose = false;             // calculations and notes, too
  std::filesystem::path out;        // instead of standard output
  std::filesystem::path save;       // the sized plant, as a plant file
  std::filesystem::path report;     // reports, beside the table
  std::filesystem::path published;  // figures to compare with
};

/// Sizes the items of a plant in order. Returns the exit status: 0 every item sized, 1 some item
/// not sized. Throws InputError for bad input.
int sizePlant(const SizeOptions& options);

}  // namespace sizewright
