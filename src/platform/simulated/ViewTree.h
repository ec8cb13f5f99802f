#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace vantorel {

/// What is on the screen: views that hold their subviews, front last. Any thread, since views are also
/// removed on completion threads.
class ViewTree {
 public:
  struct View {
    explicit View(std::string ofName) : name(std::move(ofName)) {}
    const std::string name;
    std::shared_ptr<void> content;  ///< what a view on the screen keeps alive, as its session

   private:
    friend ViewTree;
    bool isHidden = false;
    std::weak_ptr<View> superview;
    std::vector<std::shared_ptr<View>> subviews;
  };
  using Ref = std::shared_ptr<View>;

  /// Moves the view when it is somewhere already.
  void insertAtBack(const Ref &parent, const Ref &view);
  void addAtFront(const Ref &parent, const Ref &view);
  void remove(const Ref &view);
  /// With fewer than two subviews nothing happens.
  void exchangeFirstTwo(const Ref &parent);
  /// `index` is below the count of subviews.
  void hideSubview(const Ref &parent, std::size_t index);
  std::size_t subviewCount(const Ref &parent) const;
  /// From the back to the front; hidden ones end with " (hidden)".
  std::vector<std::string> subviewNames(const Ref &parent) const;

 private:
  static void detach(const Ref &view);

  mutable std::mutex mutex_;
};

}  // namespace vantorel
