// A window with the host's view, in a scene.
@_exported import Foundation
@_exported import QuartzCore

public final class UIColor: NSObject, @unchecked Sendable {
    public static let clear = UIColor()
}

@MainActor open class UIView: NSObject {
    public init(frame: CGRect = .zero) { (self.frame, bounds) = (frame, CGRect(origin: .zero, size: frame.size)) }
    public private(set) var frame: CGRect
    public private(set) var bounds: CGRect
    public private(set) var subviews: [UIView] = []
    public private(set) weak var superview: UIView?
    fileprivate weak var controller: UIViewController?
    public var backgroundColor: UIColor?
    public var isOpaque = true
    public var isUserInteractionEnabled = true
    public var isHidden = false

    public func addSubview(_ view: UIView) { insertSubview(view, at: subviews.count - (view.superview === self ? 1 : 0)) }
    public func insertSubview(_ view: UIView, at index: Int) {
        view.removeFromSuperview()
        subviews.insert(view, at: index)
        view.superview = self
    }
    public func removeFromSuperview() {
        superview?.subviews.removeAll { $0 === self }
        superview = nil
    }
    public func exchangeSubview(at first: Int, withSubviewAt second: Int) {
        if max(first, second) < subviews.count { subviews.swapAt(first, second) }
    }
}

@MainActor open class UIViewController: NSObject {
    public override nonisolated init() {}
    public private(set) var viewIfLoaded: UIView?
    public var view: UIView! {
        loadViewIfNeeded()
        return viewIfLoaded
    }
    public func loadViewIfNeeded() {
        if viewIfLoaded == nil { viewIfLoaded = UIView(frame: CGRect(x: 0, y: 0, width: 393, height: 852)) }
        viewIfLoaded?.controller = self
    }
    public var navigationController: UINavigationController? { nil }
    public internal(set) var presentedViewController: UIViewController?
    public internal(set) weak var presentingViewController: UIViewController?
    public internal(set) var isBeingDismissed = false
    public internal(set) var transitionCoordinator: (any UIViewControllerTransitionCoordinator)?
    open var popoverPresentationController: UIPopoverPresentationController? { nil }
    open func viewDidDisappear(_ animated: Bool) {}
    /// What the person sees of it.
    open var standinContent: String { "\(type(of: self))" }
}

public final class UINavigationController: UIViewController {}

public final class UIWindow: UIView {
    public weak var windowScene: UIWindowScene?
    public var rootViewController: UIViewController? {
        didSet { if let view = rootViewController?.view { addSubview(view) } }
    }
}

@MainActor open class UIScene: NSObject {}
public final class UIWindowScene: UIScene {
    public fileprivate(set) var windows: [UIWindow] = []
}

@MainActor public final class UIApplication: NSObject {
    public static let shared = UIApplication()
    public private(set) var connectedScenes: Set<UIScene> = []

    fileprivate func connectScene() {
        let window = UIWindow()
        window.rootViewController = UIViewController()
        let scene = UIWindowScene()
        window.windowScene = scene
        scene.windows = [window]
        connectedScenes = [scene]
    }
}

// ---- Steering ----

/// What the host's app has done before it calls the library.
@MainActor @_cdecl("standin_connect_scene")
public func standin_connect_scene() { UIApplication.shared.connectScene() }

/// Runs what is due on the main thread, for a short while.
@_cdecl("standin_run_main_loop")
public func standin_run_main_loop() { RunLoop.main.run(until: Date(timeIntervalSinceNow: 0.01)) }

/// The kinds of the window's views and, in brackets, theirs, from back to front. To be freed.
@MainActor @_cdecl("standin_views")
public func standin_views() -> UnsafeMutablePointer<CChar>? {
    func describe(_ view: UIView) -> String {
        let traits = (view.backgroundColor === UIColor.clear ? "clear " : "") + (view.isUserInteractionEnabled ? "" : "untouchable ") + (view.isHidden ? "hidden " : "")
        let subviews = view.subviews.map(describe).joined(separator: ", ")
        return traits + "\(type(of: view))" + (subviews.isEmpty ? "" : "(\(subviews))")
    }
    let scenes = UIApplication.shared.connectedScenes.compactMap { $0 as? UIWindowScene }
    return strdup(scenes.flatMap(\.windows).map(describe).joined())
}

/// The kind of what the controller behind the window's first view calls "sceneView". To be freed.
@MainActor @_cdecl("standin_scene_view")
public func standin_scene_view() -> UnsafeMutablePointer<CChar>? {
    let scene = UIApplication.shared.connectedScenes.first as? UIWindowScene
    let controller = scene?.windows.first?.subviews.first?.controller
    let view = controller.flatMap { Mirror(reflecting: $0).descendant("sceneView") as? UIView }
    return strdup(view.map { "\(type(of: $0))" } ?? "nil")
}
