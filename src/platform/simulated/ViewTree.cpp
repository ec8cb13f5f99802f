#include "platform/simulated/ViewTree.h"

#include <utility>

namespace vantorel {

void ViewTree::detach(const Ref &view) {
  if (const auto parent = view->superview.lock()) std::erase(parent->subviews, view);
  view->superview.reset();
}

void ViewTree::insertAtBack(const Ref &parent, const Ref &view) {
  const std::lock_guard lock(mutex_);
  detach(view);
  parent->subviews.insert(parent->subviews.begin(), view);
  view->superview = parent;
}

void ViewTree::addAtFront(const Ref &parent, const Ref &view) {
  const std::lock_guard lock(mutex_);
  detach(view);
  parent->subviews.push_back(view);
  view->superview = parent;
}

void ViewTree::remove(const Ref &view) {
  const std::lock_guard lock(mutex_);
  detach(view);
}

void ViewTree::exchangeFirstTwo(const Ref &parent) {
  const std::lock_guard lock(mutex_);
  if (parent->subviews.size() >= 2) std::swap(parent->subviews[0], parent->subviews[1]);
}

void ViewTree::hideSubview(const Ref &parent, std::size_t index) {
  const std::lock_guard lock(mutex_);
  parent->subviews.at(index)->isHidden = true;
}

std::size_t ViewTree::subviewCount(const Ref &parent) const {
  const std::lock_guard lock(mutex_);
  return parent->subviews.size();
}

std::vector<std::string> ViewTree::subviewNames(const Ref &parent) const {
  const std::lock_guard lock(mutex_);
  std::vector<std::string> names;
  for (const Ref &view : parent->subviews) names.push_back(view->name + (view->isHidden ? " (hidden)" : ""));
  return names;
}

}  // namespace vantorel
