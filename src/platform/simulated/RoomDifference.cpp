#include "platform/simulated/RoomDifference.h"

#include <map>

namespace vantorel {
namespace {

template <typename Element>
void compare(const std::vector<Element> &before, const std::vector<Element> &after,
             std::vector<Element> &added, std::vector<Element> &changed, std::vector<Element> &removed) {
  std::map<Uuid, const Element *> gone;
  for (const Element &element : before) gone.emplace(element.identifier, &element);
  for (const Element &element : after) {
    const auto old = gone.find(element.identifier);
    if (old == gone.end()) {
      added.push_back(element);
      continue;
    }
    if (*old->second != element) changed.push_back(element);
    gone.erase(old);
  }
  for (const auto &[identifier, element] : gone) removed.push_back(*element);
}

}  // namespace

RoomDifference differenceOf(const RoomDocument *before, const RoomDocument &after) {
  const RoomDocument nothing;
  const RoomDocument &old = before ? *before : nothing;
  RoomDifference result;
  const auto compareMember = [&](auto member) {
    compare(old.*member, after.*member, result.added.*member, result.changed.*member, result.removed.*member);
  };
  for (const auto surfaces :
       {&RoomDocument::walls, &RoomDocument::doors, &RoomDocument::windows, &RoomDocument::openings})
    compareMember(surfaces);
  compareMember(&RoomDocument::objects);
  return result;
}

}  // namespace vantorel
