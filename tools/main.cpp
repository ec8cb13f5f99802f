// vantorel: the command line of the library on the simulated device.
#include "CommandLine.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <stdexcept>

int main(int argc, char **argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a reader that goes away is an output that fails
  try {
    const int code = vantorel::runCommandLine(argc, argv);
    if (!std::cout.flush()) throw std::runtime_error("cannot write to standard output");
    return code;
  } catch (const std::exception &error) {
    std::cerr << "vantorel: " << error.what() << '\n';
    return 1;
  }
}
