#include "platform/simulated/SimulatedScreen.h"

#include "platform/PlatformError.h"
#include "platform/simulated/DeviceJson.h"
#include "platform/simulated/Jpeg.h"
#include "platform/simulated/SimulatedSession.h"
#include "platform/simulated/TopView.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

using Tree = std::shared_ptr<ViewTree>;

constexpr double kPixelsPerPoint = 2;

/// What every view of the device has: its place in the tree.
struct Placed {
  Placed(Tree ofTree, const std::string &name)
      : tree(std::move(ofTree)), view(std::make_shared<ViewTree::View>(name)) {}
  virtual ~Placed() = default;

  const Tree tree;
  const ViewTree::Ref view;
};

class SimulatedRoomCaptureView : public RoomCaptureView, public Placed {
 public:
  SimulatedRoomCaptureView(Tree ofTree, std::shared_ptr<RoomCaptureSession> session, int subviews)
      : Placed(std::move(ofTree), "roomCaptureView"), session_(std::move(session)) {
    view->content = session_;
    for (int i = 0; i < subviews; ++i)
      tree->addAtFront(view, std::make_shared<ViewTree::View>("subview " + std::to_string(i)));
  }
  void removeFromSuperview() override { tree->remove(view); }
  std::shared_ptr<RoomCaptureSession> captureSession() override { return session_; }
  std::size_t subviewCount() override { return tree->subviewCount(view); }
  void hideSubview(std::size_t index) override { tree->hideSubview(view, index); }

 private:
  const std::shared_ptr<RoomCaptureSession> session_;
};

class SimulatedARSCNView : public ARSCNView, public Placed {
 public:
  SimulatedARSCNView(Tree ofTree, std::shared_ptr<ARSession> session)
      : Placed(std::move(ofTree), "sceneView") {
    view->content = std::move(session);
  }
  void removeFromSuperview() override { tree->remove(view); }
};

class SimulatedViewController : public ViewController, public Placed {
 public:
  SimulatedViewController(Tree ofTree, Rect bounds, DeviceParts &device)
      : Placed(std::move(ofTree), "controller"), bounds_(bounds), device_(device) {}

  bool loadView() override {
    if (!isLoaded_) isLoaded_ = !device_.faults.hits("loadView");
    return isLoaded_;
  }
  Rect bounds() override { return bounds_; }
  void insertAtBack(View &subview) override {
    tree->insertAtBack(view, dynamic_cast<Placed &>(subview).view);
  }
  void ignoreTouches() override { device_.notes.set("view.ignoresTouches", "true"); }
  void dismissNavigationController() override {
    device_.notes.set("navigationController.dismissals", std::to_string(++dismissals_));
  }
  void exposeSceneView(std::weak_ptr<SceneViewSlot>) override {}  // nothing looks by name here

 private:
  const Rect bounds_;
  DeviceParts &device_;
  bool isLoaded_ = false;
  int dismissals_ = 0;
};

class SimulatedRootViewController : public RootViewController {
 public:
  explicit SimulatedRootViewController(DeviceParts &device) : device_(device) {}
  bool makeViewTransparent() override {
    if (device_.faults.hits("loadRootView")) return false;
    device_.notes.set("rootView.isTransparent", "true");
    return true;
  }

 private:
  DeviceParts &device_;
};

class SimulatedWindow : public Window {
 public:
  SimulatedWindow(DeviceNotes &notes, Tree tree, ViewTree::Ref window,
                  std::shared_ptr<RootViewController> root)
      : notes_(notes), tree_(std::move(tree)), window_(std::move(window)), root_(std::move(root)) {}

  void clearBackground() override { notes_.set("window.isClear", "true"); }
  void addSubview(ViewController &controller) override {
    tree_->addAtFront(window_, dynamic_cast<Placed &>(controller).view);
  }
  void exchangeFirstTwoSubviews() override { tree_->exchangeFirstTwo(window_); }
  std::shared_ptr<RootViewController> rootViewController() override { return root_; }

 private:
  DeviceNotes &notes_;
  const Tree tree_;
  const ViewTree::Ref window_;
  const std::shared_ptr<RootViewController> root_;
};

}  // namespace

// ---- The window ----

/// The host's view is there or not, as the window option says now.
void SimulatedScreen::arrangeWindow() {
  const bool hasHost = device_.options.get().window != DeviceTraits::Window::empty;
  const auto views = tree_->subviewNames(window_);
  const bool isThere = std::find(views.begin(), views.end(), hostView_->name) != views.end();
  if (hasHost && !isThere) tree_->insertAtBack(window_, hostView_);
  if (!hasHost) tree_->remove(hostView_);
}

std::shared_ptr<Window> SimulatedScreen::firstWindow() {
  const auto kind = device_.options.get().window;
  if (kind == DeviceTraits::Window::none) return nullptr;
  arrangeWindow();
  std::shared_ptr<RootViewController> root;
  if (kind != DeviceTraits::Window::bare) root = std::make_shared<SimulatedRootViewController>(device_);
  return std::make_shared<SimulatedWindow>(device_.notes, tree_, window_, std::move(root));
}

std::string SimulatedScreen::screenshotJpeg() {
  device_.faults.check("screenshot");
  if (device_.options.get().window == DeviceTraits::Window::none) throw PlatformError("there is no window");
  const auto session = device_.sessions.current();
  const auto room = session ? session->seen() : nullptr;
  const auto camera = session ? session->arSession()->cameraTransform() : std::nullopt;
  const auto pixels = [](double points) { return static_cast<int>(points * kPixelsPerPoint); };
  return jpegOf(topView(room.get(), camera, pixels(bounds().width), pixels(bounds().height)));
}

InterfaceOrientation SimulatedScreen::orientation() {
  const bool hasWindow = device_.options.get().window != DeviceTraits::Window::none;
  return hasWindow ? InterfaceOrientation::portrait : InterfaceOrientation::unknown;
}

// ---- Making views ----

std::shared_ptr<ViewController> SimulatedScreen::makeViewController() {
  const auto controller = std::make_shared<SimulatedViewController>(tree_, bounds(), device_);
  controllerView_ = controller->view;
  return controller;
}

std::shared_ptr<RoomCaptureView> SimulatedScreen::makeRoomCaptureView(
    const std::optional<RoomCaptureViewSettings> &settings) {
  const auto view = std::make_shared<SimulatedRoomCaptureView>(
      tree_, SimulatedSession::make(device_, nullptr), device_.options.get().coachingSubviews);
  scanView_ = view->view;
  device_.notes.set("roomCaptureView.settings", jsonOf(settings));
  return view;
}

std::shared_ptr<ARSCNView> SimulatedScreen::makeARSCNView(const std::optional<ARSCNViewSettings> &settings) {
  device_.notes.set("sceneView.settings", jsonOf(settings));
  return std::make_shared<SimulatedARSCNView>(tree_, settings ? settings->session : nullptr);
}

// ---- Looking ----

void SimulatedScreen::reset() {
  window_ = std::make_shared<ViewTree::View>("window");
  hostView_ = std::make_shared<ViewTree::View>("host");
  controllerView_ = nullptr;
  scanView_.reset();
  arrangeWindow();
}

std::vector<std::string> SimulatedScreen::windowSubviews() {
  if (device_.options.get().window == DeviceTraits::Window::none) return {};
  arrangeWindow();
  return tree_->subviewNames(window_);
}

std::vector<std::string> SimulatedScreen::controllerSubviews() const {
  return controllerView_ ? tree_->subviewNames(controllerView_) : std::vector<std::string>{};
}

std::vector<std::string> SimulatedScreen::scanViewSubviews() const {
  const auto view = scanView_.lock();
  return view ? tree_->subviewNames(view) : std::vector<std::string>{};
}

}  // namespace vantorel
