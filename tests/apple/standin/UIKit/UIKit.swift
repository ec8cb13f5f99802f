// Views hold each other as UIKit's do, and the device hears of what it shows.
@_exported import Foundation
@_exported import QuartzCore
import Phone

public final class UIColor: NSObject, @unchecked Sendable {
    public static let clear = UIColor()
}

@MainActor open class UIView: NSObject {
    public init(frame: CGRect = .zero) { (self.frame, bounds) = (frame, CGRect(origin: .zero, size: frame.size)) }
    public private(set) var frame: CGRect
    public private(set) var bounds: CGRect
    open var subviews: [UIView] { ownSubviews }
    private var ownSubviews: [UIView] = []
    public private(set) weak var superview: UIView?
    open var backgroundColor: UIColor?
    open var isOpaque = true
    open var isUserInteractionEnabled = true
    open var isHidden = false
    /// What the device has for it.
    open var standin: DeviceObject? { nil }

    open func addSubview(_ view: UIView) { insertSubview(view, at: subviews.count - (view.superview === self ? 1 : 0)) }
    open func insertSubview(_ view: UIView, at index: Int) {
        view.leave()
        ownSubviews.insert(view, at: index)
        view.superview = self
    }
    public func removeFromSuperview() {
        leave()
        if let standin { device_view_remove(standin.raw) }
    }
    private func leave() {
        superview?.ownSubviews.removeAll { $0 === self }
        superview = nil
    }
    open func exchangeSubview(at first: Int, withSubviewAt second: Int) {
        if max(first, second) < ownSubviews.count { ownSubviews.swapAt(first, second) }
    }
}

@MainActor open class UIViewController: NSObject {
    public override nonisolated init() {}
    open private(set) var viewIfLoaded: UIView?
    private lazy var ownView = ControllerView(of: self)
    open var view: UIView! { ownView }
    open func loadViewIfNeeded() { viewIfLoaded = device_controller_load_view(ownView.controller.raw) ? ownView : nil }
    public var navigationController: UINavigationController? { UINavigationController(ownView.controller) }
    public internal(set) var presentedViewController: UIViewController?
    public internal(set) weak var presentingViewController: UIViewController?
    public internal(set) var isBeingDismissed = false
    public internal(set) var transitionCoordinator: (any UIViewControllerTransitionCoordinator)?
    open var popoverPresentationController: UIPopoverPresentationController? { nil }
    open func viewDidDisappear(_ animated: Bool) {}
    open func dismiss(animated: Bool, completion: (() -> Void)? = nil) { dismissPresented(animated: animated, completion: completion) }
    /// What the person sees of it: its kind, as the device tells it, and what it shows.
    open var standinContent: (kind: String, content: String)? { nil }
}

/// The view of the library's own controller; of sheets it has only the size.
final class ControllerView: UIView {
    lazy var controller = DeviceObject(device_controller_create())
    fileprivate weak var owner: UIViewController?
    init(of owner: UIViewController) {
        self.owner = owner
        super.init(frame: UIScreen.main.bounds)
    }
    override func insertSubview(_ view: UIView, at index: Int) {
        precondition(index == 0)
        super.insertSubview(view, at: index)
        device_controller_insert_at_back(controller.raw, view.standin!.raw)
    }
    override var isUserInteractionEnabled: Bool {
        didSet { if !isUserInteractionEnabled { device_controller_ignore_touches(controller.raw) } }
    }
}

public final class UINavigationController: UIViewController {
    private let controller: DeviceObject
    init(_ controller: DeviceObject) { self.controller = controller }
    public override func dismiss(animated: Bool, completion: (() -> Void)? = nil) { device_controller_dismiss(controller.raw) }
}

/// Its view can be loaded or not whenever somebody tries.
final class HostController: UIViewController {
    private let ownView = HostView(frame: UIScreen.main.bounds)
    private var isLoaded = false
    override var view: UIView! { ownView }
    override var viewIfLoaded: UIView? { isLoaded ? ownView : nil }
    override func loadViewIfNeeded() { isLoaded = !fails("loadRootView") }
}

final class HostView: UIView {
    override var backgroundColor: UIColor? {
        didSet { if !isOpaque && backgroundColor === UIColor.clear { device_note("rootView.isTransparent", "true") } }
    }
}

public final class UIWindow: UIView {
    public weak var windowScene: UIWindowScene?
    fileprivate var window: DeviceObject?
    fileprivate let host = HostController()
    public var rootViewController: UIViewController? { device_window_has_root(window!.raw) ? host : nil }

    public override var backgroundColor: UIColor? { didSet { device_window_clear(window!.raw) } }
    public override func addSubview(_ view: UIView) {
        super.addSubview(view)
        device_window_add(window!.raw, (view as! ControllerView).controller.raw)
    }
    public override func exchangeSubview(at first: Int, withSubviewAt second: Int) {
        precondition((first, second) == (0, 1))
        super.exchangeSubview(at: first, withSubviewAt: second)
        device_window_exchange(window!.raw)
    }
}

extension UIWindow {
    /// For tests: the controller of the first view in it.
    public var firstController: UIViewController? { (subviews.first as? ControllerView)?.owner }
}

@MainActor open class UIScene: NSObject {}

public final class UIWindowScene: UIScene {
    private let window = UIWindow()
    public var windows: [UIWindow] {
        guard let object = device_window() else { return [] }
        (window.window, window.windowScene) = (DeviceObject(object), self)
        return [window]
    }
}

@MainActor public final class UIApplication: NSObject {
    public static let shared = UIApplication()
    private var scene = UIWindowScene()
    private var powerCycles: UInt64 = 0
    public var connectedScenes: Set<UIScene> {
        if powerCycles != device_power_cycles() { (scene, powerCycles) = (UIWindowScene(), device_power_cycles()) }
        return [scene]
    }
}
