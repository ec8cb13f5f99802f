// vantorel: the command line of the library on the simulated device.
#include "CommandLine.h"
#include "StandardStreams.h"

#include <exception>
#include <iostream>
#include <stdexcept>

int main(int argc, char **argv) {
  vantorel::prepareStandardStreams();
  try {
    const int code = vantorel::runCommandLine(argc, argv);
    if (!std::cout.flush()) throw std::runtime_error("cannot write to standard output");
    return code;
  } catch (const std::exception &error) {
    std::cerr << "vantorel: " << error.what() << '\n';
    return 1;
  }
}
