// Runs a scenario without a front end: quorvel_scenario [--history URL] FILE.
#include "scenario/ProgramMain.h"
#include "scenario/ScenarioHeadless.h"

int main(int argc, char** argv) {
  quorvel::scenario::ScenarioHeadless port;
  return quorvel::scenario::ProgramMain(port, {argv + 1, argv + argc}, std::cout, std::cerr);
}
