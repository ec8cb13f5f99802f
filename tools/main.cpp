// vantorel: the command line of the library on the simulated device.
#include "vantorel/vantorel.h"

#include "DeviceText.h"
#include "HostCommand.h"
#include "ScanCommand.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

namespace {

using namespace vantorel;

std::string version() { return DeviceText(getVantorelVersion()).get(); }

std::string unavailable(const std::string &what) { return what + " are not available in this version"; }

/// A script is read line by line and an @ there names a file, so these have no way in.
std::string checkWord(const std::string &word) {
  return word.find('\n') == std::string::npos ? "" : "expected no line break";
}

std::string checkName(const std::string &name) {
  return name.starts_with('@') ? "expected a name that does not begin with @" : checkWord(name);
}

std::string checkVersion(const std::string &text) {
  const bool isVersion = !text.empty() && text.find_first_not_of("0123456789.") == std::string::npos;
  return isVersion ? "" : "expected a version as 16.4";
}

CLI::Validator finite(double least, double most) {
  return {[least, most](std::string &text) -> std::string {
            double value = 0;
            if (CLI::detail::lexical_cast(text, value) && value >= least && value <= most) return {};
            return "expected a number from " + CLI::detail::to_string(least) + " to " +
                   CLI::detail::to_string(most);
          },
          "", ""};
}

/// The options live in main; CLI11 keeps references to them.
struct Scan {
  ScanOptions options;
  bool printsScript = false;
};

CLI::App *addScan(CLI::App &app, Scan &scan) {
  CLI::App *command = app.add_subcommand("scan", "Scan a room on the simulated device and save it");
  ScanOptions &options = scan.options;
  command->add_option("ROOM", options.room, "The room's JSON")->required()->check(checkWord);
  command->add_option("--out", options.documents, "The device's documents folder, created when absent")
      ->type_name("DIR")
      ->capture_default_str();
  command->add_option("--directory", options.directoryName, "The folder below it")
      ->type_name("NAME")
      ->check(checkName)
      ->capture_default_str();
  command->add_option("--scan", options.scanName, "The scan's folder below that; must not exist")
      ->type_name("NAME")
      ->check(checkName)
      ->capture_default_str();
  command->add_option("--ios", options.ios, "The device's system")
      ->type_name("VERSION")
      ->check(checkVersion)
      ->capture_default_str();
  command->add_option("--seconds", options.seconds, "How long the simulated scan takes")
      ->type_name("S")
      ->check(finite(0.001, 3600))
      ->capture_default_str();
  command->add_option("--rate", options.updatesPerSecond, "Updates a second")
      ->type_name("N")
      ->check(finite(0.001, 1000))
      ->capture_default_str();
  command->add_option("--plan", "A floor plan, beside the scan")
      ->type_name("FILE")
      ->check([](const std::string &) { return unavailable("floor plans"); });
  command->add_flag("--json", options.json, "The summary as one JSON object");
  command->add_flag("--print-script", scan.printsScript, "Only print the commands, for vantorel host");
  return command;
}

CLI::App *addHost(CLI::App &app, HostOptions &options) {
  CLI::App *command = app.add_subcommand("host", "Carry out commands, one a line, and print what comes back");
  command->add_option("SCRIPT", options.script, "The commands (default: standard input)");
  command->add_option("--out", options.documents, "The device's documents folder (default: a temporary one)")
      ->type_name("DIR");
  command->add_flag("--json", options.json, "One JSON object a line");
  command->add_flag_callback(
      "--no-callbacks", [&options] { options.registersCallbacks = false; },
      "Register no callback at the start");
  command->add_option("--record", "A recording of what happened")
      ->type_name("FILE")
      ->check([](const std::string &) { return unavailable("recordings"); });
  command->footer(R"(Commands
  FUNCTION [ARGUMENT...]  an exported function; @FILE for a text argument is that file's text
  setSLOT                 registers a callback that prints (without --no-callbacks all ten are)
  advance SECONDS         runs everything that is due up to then; 0: what is due now
  settle                  runs until only periodic work is left
  state [NAME]            the controller's properties, or one value
  files                   the documents folder
  device ios VERSION | lidar on|off | torch present|absent|refused|nodevice
  device window full|bare|empty|none | coaching N | tracking normal|limited|unavailable|auto
  device camera N*16 | projection N*16 | map present|none | fail CALL [COUNT [SKIP]]
  device room FILE [SECONDS [RATE]] | update FILE | instruction CASE | end [DESCRIPTION]
Words are split as in a shell, without expansion; # starts a comment.

Environment
  VANTOREL_FREE_RUNNING=1              threads run freely; the order of events is then open
  VANTOREL_HANDOVER_SLEEP=MICROS[:SEED]  random sleeps whenever one thread hands over to another)");
  return command;
}

int runScanCommand(const Scan &scan) {
  if (scan.printsScript) {
    std::cout << scanScript(scan.options);
  } else {
    runScan(scan.options, std::cout, std::cerr, isatty(STDERR_FILENO) != 0);
  }
  return 0;
}

int run(int argc, char **argv) {
  CLI::App app("Scans rooms on a simulated iPhone through the library's exported functions.", "vantorel");
  app.set_version_flag("--version", version);
  app.require_subcommand(1);
  Scan scan;
  HostOptions host;
  const CLI::App *scanCommand = addScan(app, scan);
  addHost(app, host);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return app.exit(error) == 0 ? 0 : 2;
  }
  const int code = scanCommand->parsed() ? runScanCommand(scan) : runHost(host);
  if (!std::cout.flush()) throw std::runtime_error("cannot write to standard output");
  return code;
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception &error) {
    std::cerr << "vantorel: " << error.what() << '\n';
    return 1;
  }
}
