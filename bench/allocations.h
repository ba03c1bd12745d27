#pragma once

#include <cstddef>

/// Number of allocations of the program so far.
std::size_t allocationCount();
