// quorvel_console: the example host.
#include "console/Console.h"

int main(int argc, char** argv) {
  return quorvel::console::RunConsole(argc, argv);
}
