#include "bridge/Plugin.h"

#include "controller/VTLViewController.h"
#include "platform/Platform.h"
#include "platform/PluginAccess.h"

namespace vantorel {
namespace {

/// Never destroyed: the platform's threads may outlive main().
std::unique_ptr<Plugin> &instance() {
  static auto &kept = *new std::unique_ptr<Plugin>(new Plugin);
  return kept;
}

}  // namespace

VTLViewController &Plugin::viewController() {
  std::call_once(made_,
                 [this] { viewController_ = std::make_shared<VTLViewController>(platform(), callbacks); });
  return *viewController_;
}

Plugin &plugin() { return *instance(); }

void restartPlugin() { instance() = std::make_unique<Plugin>(); }

void stopPlugin() {
  plugin().hasStopped = true;
  throw PluginStopped();
}

std::optional<std::string> pluginState(std::string_view name) {
  return stateJson(plugin().viewController(), name);
}

}  // namespace vantorel
