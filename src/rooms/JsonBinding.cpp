#include "rooms/JsonBinding.h"

namespace vantorel {
namespace {

/// The function for a form of JSON, which a type may lack.
template <typename Function>
Function *required(Function *function, const JsonType &type, const char *got) {
  if (!function) throw JsonMismatch(std::string("expected ") + type.name + ", got " + got);
  return function;
}

bool isInsideCharacter(const std::string &text, std::size_t at) {
  return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

/// Without its middle when it is long.
std::string shortened(const std::string &path) {
  constexpr std::size_t kLongest = 100, kKept = 45;
  if (path.size() <= kLongest) return path;
  std::size_t head = kKept, tail = path.size() - kKept;
  while (isInsideCharacter(path, head)) --head;
  while (isInsideCharacter(path, tail)) ++tail;
  return path.substr(0, head) + " ... " + path.substr(tail);
}

}  // namespace

JsonSlot JsonBinder::slotOrOptional(std::size_t offset) {
  offset_ = offset;
  if (frames_.empty() || !frames_.back().isArray) return next_;
  return frames_.back().slot.type->element(frames_.back());
}

JsonSlot JsonBinder::slot(std::size_t offset) {
  JsonSlot slot = slotOrOptional(offset);
  while (slot.type->inside) slot = slot.type->inside(slot.target);
  return slot;
}

void JsonBinder::done() {
  if (!frames_.empty()) ++frames_.back().index;
}

void JsonBinder::null(std::size_t offset) {
  auto [type, target] = slotOrOptional(offset);
  required(type->null, *type, "null")(target);
  done();
}

void JsonBinder::boolean(std::size_t offset, bool value) {
  auto [type, target] = slot(offset);
  required(type->boolean, *type, value ? "true" : "false")(target, value);
  done();
}

void JsonBinder::number(std::size_t offset, std::string_view value) {
  auto [type, target] = slot(offset);
  required(type->number, *type, "a number")(target, value);
  done();
}

void JsonBinder::string(std::size_t offset, std::string_view value) {
  auto [type, target] = slot(offset);
  if (type->writtenString) {
    type->writtenString(target, text_.writtenString(offset + 1));
  } else {
    required(type->string, *type, "a string")(target, value);
  }
  done();
}

void JsonBinder::key(std::size_t offset, std::string_view value) {
  offset_ = offset;
  JsonFrame &object = frames_.back();
  object.key = value;
  next_ = object.slot.type->member(object);
}

void JsonBinder::begin(std::size_t offset, bool isArray) {
  JsonSlot opened = slot(offset);
  if (isArray) {
    required(opened.type->element, *opened.type, "an array");
  } else {
    required(opened.type->member, *opened.type, "an object");
  }
  if (frames_.size() == kDeepest) throw JsonMismatch("more than 512 arrays and objects inside each other");
  frames_.push_back({opened, offset, isArray});
}

void JsonBinder::end(std::size_t offset) {
  JsonFrame closed = frames_.back();
  frames_.pop_back();
  offset_ = closed.begin;
  if (closed.slot.type->end) closed.slot.type->end(closed, text_.written(closed.begin, offset + 1));
  done();
}

std::string JsonBinder::keyPath() const {
  std::string path;
  for (const JsonFrame &frame : frames_) {
    if (frame.isArray) {
      path.append("[").append(std::to_string(frame.index)).append("]");
    } else if (frame.key.data()) {
      path.append(path.empty() ? "" : ".").append(frame.key);
    }
  }
  return shortened(path);
}

}  // namespace vantorel
