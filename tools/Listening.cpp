#include "Listening.h"

#include "vantorel/simulated_device.h"

#include "DeviceText.h"

#include <atomic>

namespace vantorel {
namespace {

std::atomic<Printer *> listener{nullptr};

void observe(const char *kind, const char *name, const char *value) {
  Listening::hear(kind, name ? std::optional<std::string_view>(name) : std::nullopt, EventValue::text(value));
}

}  // namespace

Listening::Listening(Printer &printer) {
  vantorelDevicePowerCycle();
  listener = &printer;
  vantorelDeviceSetObserver(observe);
}

Listening::~Listening() {
  listener = nullptr;
  vantorelDevicePowerCycle();
  vantorelDeviceSetObserver(nullptr);
}

void Listening::hear(std::string_view kind, std::optional<std::string_view> name, const EventValue &value) {
  if (Printer *printer = listener)
    printer->print({vantorelDeviceTime(), vantorelDeviceThread(), kind, name, value});
}

void Listening::hearText(std::string_view slot, const char *text) {
  const DeviceText owned(const_cast<char *>(text));
  hear("callback", slot, EventValue::text(owned.get()));
}

}  // namespace vantorel
