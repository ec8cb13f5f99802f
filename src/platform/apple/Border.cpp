#include "platform/apple/Border.h"

#include <cstdio>
#include <cstdlib>

void vantorel::apple::stopProcess(std::string_view message) {
  std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
  std::abort();
}

using namespace vantorel::apple;

void vantorel_core_drop(void *context) noexcept { delete static_cast<Context *>(context); }

void vantorel_core_run(void *work) noexcept { carried<Work>(work)(); }

void vantorel_core_object(void *object, vantorel_swift_handle found) noexcept {
  static_cast<Handle *>(object)->reset(found);
}

void vantorel_core_complete(void *completion, vantorel_swift_handle result) noexcept {
  carried<Completion>(completion)(Handle(result));
}

void vantorel_core_text(void *text, const char *utf8, size_t length) noexcept {
  static_cast<std::string *>(text)->assign(utf8, length);
}
