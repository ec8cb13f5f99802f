#include "CommandLine.h"

#include "vantorel/simulated_device.h"

#include "Arguments.h"
#include "DeviceCommands.h"
#include "DeviceText.h"
#include "HostCommand.h"
#include "ModelCommands.h"
#include "ScanCommand.h"
#include "base/Utf8.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace vantorel {
namespace {

std::string version() { return DeviceText(getVantorelVersion()).get(); }

/// A script is read line by line and an @ there names a file, so these have no way in.
std::string checkWord(const std::string &word) {
  return word.find('\n') == std::string::npos ? "" : "expected no line break";
}

/// A scan lies below the documents folder, wherever its names lead.
std::string checkName(const std::string &name) {
  const std::filesystem::path path(name);
  if (name.starts_with('@')) return "expected a name that does not begin with @";
  if (std::find(path.begin(), path.end(), "..") != path.end()) return "expected a name without ..";
  if (repairedUtf8(name) != name) return "expected UTF-8";
  return checkWord(name);
}

std::string checkVersion(const std::string &text) {
  const DeviceText refusal(vantorelDeviceSetOption("ios", text.c_str()));
  return refusal ? "expected a version from 16.0 on, as 16.4" : "";
}

CLI::Validator within(NumberRange range) {
  return {[range](const std::string &text) -> std::string {
            try {
              numberArgument(text, range);
              return {};
            } catch (const ArgumentError &error) {
              return error.what();
            }
          },
          "", ""};
}

/// CLI11 keeps references to these.
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
  command->add_option("--seconds", options.seconds, "How long the simulated scan takes: 0.001 to 3600 s")
      ->type_name("S")
      ->check(within(kScanSeconds))
      ->capture_default_str();
  command->add_option("--rate", options.updatesPerSecond, "Updates a second: 0.001 to 1000")
      ->type_name("N")
      ->check(within(kUpdatesPerSecond))
      ->capture_default_str();
  command->add_option("--plan", options.plan, "Also the room's floor plan, an SVG picture")
      ->type_name("FILE");
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
  command->add_option("--record", options.recording, "Record what the sessions deliver, for device recording")
      ->type_name("FILE");
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
  device room FILE [SECONDS [RATE]] | recording FILE | update FILE | instruction CASE | end [DESCRIPTION]
Words are split as in a shell, without expansion; # starts a comment.

Environment
  VANTOREL_FREE_RUNNING=1              threads run freely; the order of events is then open
  VANTOREL_HANDOVER_SLEEP=MICROS[:SEED]  random sleeps whenever one thread hands over to another)");
  return command;
}

CLI::App *addPlan(CLI::App &app, PlanOptions &options) {
  CLI::App *command = app.add_subcommand("plan", "Draw a floor plan of a room or a structure, as SVG");
  command->add_option("SCAN", options.scan, "The JSON of a room or of several merged ones")->required();
  command->add_option("-o", options.output, "The picture (default: standard output)")->type_name("FILE.svg");
  command->add_flag("--feet", options.feet, "Lengths in feet and inches, areas in square feet");
  return command;
}

CLI::App *addSlim(CLI::App &app, SlimOptions &options) {
  CLI::App *command = app.add_subcommand("slim", "A scan without its coreModel and with new identifiers");
  command->add_option("ROOM", options.scan, "The JSON of a room or of several merged ones")->required();
  command->add_option("-o", options.output, "The slim JSON (default: standard output)")->type_name("FILE");
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

/// The first word that nobody knows, else what the parser says.
std::string usageText(const CLI::App &app, const CLI::ParseError &error) {
  const bool hasCommand = !app.get_subcommands().empty();
  const std::vector<std::string> unknown = app.remaining(true);
  if (unknown.empty()) return hasCommand ? error.what() : "expected a command: scan, host, plan or slim";
  const std::string &word = unknown.front();
  if (word.starts_with('-')) return "there is no option " + word;
  return (hasCommand ? "one argument too many: " : "there is no command ") + word;
}

}  // namespace

int runCommandLine(int argc, const char *const *argv) {
  CLI::App app("Scans rooms on a simulated iPhone through the library's exported functions.", "vantorel");
  app.set_version_flag("--version", version);
  app.allow_windows_style_options(false);  // the same options on every system
  app.require_subcommand(1);
  app.footer(
      "COMMAND --help explains a command.\n"
      "Exit codes: 0 done, 1 refused or failed (one line says why), 2 wrong usage.");
  Scan scan;
  HostOptions host;
  PlanOptions plan;
  SlimOptions slim;
  const CLI::App *scanCommand = addScan(app, scan), *planCommand = addPlan(app, plan),
                 *slimCommand = addSlim(app, slim);
  addHost(app, host);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    if (error.get_exit_code() == 0) return app.exit(error);  // prints the help or the version
    std::cerr << "vantorel: " << usageText(app, error) << '\n';
    return 2;
  }
  if (planCommand->parsed()) return runPlan(plan, std::cout), 0;
  if (slimCommand->parsed()) return runSlim(slim, std::cout), 0;
  return scanCommand->parsed() ? runScanCommand(scan) : runHost(host);
}

}  // namespace vantorel
