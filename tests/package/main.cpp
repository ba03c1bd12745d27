#include <cstdio>

#include "sizewright/rotating/pump.h"

int main() {
  sizewright::CPumpObj pump(0, "", "", "", "", "", nullptr, nullptr, nullptr);  // no host, no item
  std::printf("valid: %d\n", pump.IsValid());
  std::printf("head: %.1f FEET\n", sizewright::pumpHead(120.0, 20.0, 1.0));
  return 0;
}
