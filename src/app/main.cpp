#include "sizewright/app/program.h"

int main(int argc, char** argv) {
  return sizewright::runProgram(argc, argv);
}
