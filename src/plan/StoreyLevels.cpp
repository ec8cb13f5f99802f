#include "plan/StoreyLevels.h"

#include <algorithm>
#include <cmath>

namespace vantorel::plan {
namespace {

constexpr double kStoreyHeight = 1.8;  // metres between the feet of walls, at least
constexpr double kStep = 0.4;          // what stands this far below the foot of walls still belongs to them
constexpr std::size_t kMostStoreys = 50;

/// How low it reaches; a floor's own y lies level.
template <typename Element>
double footOf(const Element &element) {
  return element.transform.at(3, 1) - std::abs(element.transform.at(1, 1) * element.dimensions.y) / 2.0;
}

std::string nameOf(std::int64_t story) {
  if (story == 0) return "Ground floor";
  return story < 0 ? "Basement" + (story < -1 ? " " + std::to_string(story).substr(1) : "")
                   : "Floor " + std::to_string(story);
}

}  // namespace

StoreyLevels::StoreyLevels(const RoomDocument &document) : usual_(document.story.value_or(0)) {
  const auto note = [this](const std::optional<std::int64_t> &story) {
    stories_.push_back(story.value_or(usual_));
  };
  for (const auto *surfaces : {&document.walls, &document.doors, &document.windows, &document.openings})
    for (const Surface &surface : *surfaces) note(surface.story);
  for (const RoomObject &object : document.objects) note(object.story);
  if (stories_.empty()) stories_ = {usual_};
  std::ranges::sort(stories_);
  const auto again = std::ranges::unique(stories_);
  stories_.erase(again.begin(), again.end());
  if (stories_.size() > kMostStoreys) stories_.resize(kMostStoreys);
  if (stories_.size() > 1) return;
  std::vector<double> feet;
  for (const Surface &wall : document.walls)
    if (const double foot = footOf(wall); std::isfinite(foot)) feet.push_back(foot);
  std::ranges::sort(feet);
  for (std::size_t i = 0; i < feet.size() && feet_.size() < kMostStoreys; ++i)
    if (i == 0 || feet[i] - feet[i - 1] > kStoreyHeight) feet_.push_back(feet[i]);
}

std::vector<std::string> StoreyLevels::names() const {
  std::vector<std::string> names;
  if (stories_.size() > 1)
    for (const std::int64_t story : stories_) names.push_back(nameOf(story));
  else
    for (std::size_t i = 0; i < std::max<std::size_t>(feet_.size(), 1); ++i)
      names.push_back(nameOf(static_cast<std::int64_t>(i)));
  return names;
}

std::size_t StoreyLevels::of(const Surface &surface) const { return indexOf(surface.story, footOf(surface)); }
std::size_t StoreyLevels::of(const RoomObject &object) const { return indexOf(object.story, footOf(object)); }
std::size_t StoreyLevels::of(const Section &section) const {
  return indexOf(section.story, section.center.y);
}

std::size_t StoreyLevels::indexOf(const std::optional<std::int64_t> &story, double foot) const {
  if (stories_.size() > 1) {
    const auto found = std::ranges::lower_bound(stories_, story.value_or(usual_));
    return found == stories_.end() ? stories_.size() - 1 : static_cast<std::size_t>(found - stories_.begin());
  }
  const auto above = std::ranges::upper_bound(feet_, foot + kStep);
  return above == feet_.begin() ? 0 : static_cast<std::size_t>(above - feet_.begin()) - 1;
}

}  // namespace vantorel::plan
