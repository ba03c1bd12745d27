#pragma once

namespace sizewright {

/// The program `sizewright`. Returns its exit status: 0 done, 1 some item not sized, 2 bad usage or
/// bad input, told in one line on standard error.
int runProgram(int argc, const char* const* argv);

}  // namespace sizewright
