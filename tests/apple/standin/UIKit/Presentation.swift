// Controllers that are shown over others, one turn of the main queue after they were asked to come or go.
import Phone

@MainActor public protocol UIViewControllerTransitionCoordinatorContext: NSObjectProtocol {}

@MainActor public protocol UIViewControllerTransitionCoordinator: UIViewControllerTransitionCoordinatorContext {
    @discardableResult
    func animate(
        alongsideTransition animation: ((any UIViewControllerTransitionCoordinatorContext) -> Void)?,
        completion: ((any UIViewControllerTransitionCoordinatorContext) -> Void)?
    ) -> Bool
}

final class Transition: NSObject, UIViewControllerTransitionCoordinator {
    private var completions: [(any UIViewControllerTransitionCoordinatorContext) -> Void] = []
    func animate(
        alongsideTransition animation: ((any UIViewControllerTransitionCoordinatorContext) -> Void)?,
        completion: ((any UIViewControllerTransitionCoordinatorContext) -> Void)?
    ) -> Bool {
        if let completion { completions.append(completion) }
        return true
    }

    /// Both controllers are in transition until then.
    @MainActor static func run(_ controllers: [UIViewController], _ end: @MainActor @escaping () -> Void) {
        let transition = Transition()
        controllers.forEach { $0.transitionCoordinator = transition }
        mainAsync {
            MainActor.assumeIsolated {
                end()
                transition.completions.forEach { $0(transition) }
                controllers.forEach { $0.transitionCoordinator = nil }
            }
        }
    }
}

/// UIKit may hold for a while what was dismissed.
@MainActor private var lingering: UIViewController?

extension UIViewController {
    /// Refused, in silence, while it shows another or is in transition.
    public func present(_ controller: UIViewController, animated: Bool, completion: (() -> Void)? = nil) {
        guard presentedViewController == nil, transitionCoordinator == nil else { return }
        controller.popoverPresentationController?.checkSource()
        presentedViewController = controller
        controller.presentingViewController = self
        if let (kind, content) = controller.standinContent { device_present(kind, content) }
        Transition.run([self, controller]) {
            completion?()
            if !isPersonSlow { mainAsync { MainActor.assumeIsolated { self.dismiss(animated: true) } } }
        }
    }

    func dismissPresented(animated: Bool, completion: (() -> Void)?) {
        if let presented = presentedViewController {
            presented.isBeingDismissed = true
            Transition.run([self, presented]) {
                presented.viewDidDisappear(animated)
                presented.isBeingDismissed = false
                (self.presentedViewController, presented.presentingViewController) = (nil, nil)
                if presented.presentedViewController == nil { lingering = presented }
                completion?()
            }
        } else if let presenting = presentingViewController {
            presenting.dismiss(animated: animated, completion: completion)
        } else {
            completion?()
        }
    }
}

public struct UIPopoverArrowDirection: OptionSet, Sendable {
    public let rawValue: UInt
    public init(rawValue: UInt) { self.rawValue = rawValue }
}

@MainActor open class UIPresentationController: NSObject {}

public final class UIPopoverPresentationController: UIPresentationController {
    public var sourceView: UIView?
    public var sourceRect = CGRect.zero
    public var permittedArrowDirections = UIPopoverArrowDirection(rawValue: 15)
    func checkSource() {
        precondition(sourceView?.bounds.contains(sourceRect.origin) == true, "A popover needs a place in a source view.")
    }
}

open class UIActivity: NSObject {}

/// As on an iPad, where it is a popover.
open class UIActivityViewController: UIViewController {
    private let items: [Any]
    private let popover = UIPopoverPresentationController()
    public init(activityItems: [Any], applicationActivities: [UIActivity]?) {
        items = activityItems
        super.init()
    }
    open override var popoverPresentationController: UIPopoverPresentationController? { popover }
    open override var standinContent: (kind: String, content: String)? {
        let texts = items.map { item in (item as? URL).map { $0.isFileURL ? $0.path : $0.absoluteString } ?? "\(item)" }
        return ("share", texts.joined(separator: ", "))
    }
}

public final class UIAlertController: UIViewController {
    public override var standinContent: (kind: String, content: String)? { ("alert", "") }
}

// ---- For tests ----

@MainActor private var isPersonSlow = false

@MainActor private var root: UIViewController? {
    (UIApplication.shared.connectedScenes.first as? UIWindowScene)?.windows.first?.rootViewController
}

@MainActor private var top: UIViewController? {
    var top = root
    while let next = top?.presentedViewController { top = next }
    return top
}

/// Whether sheets stay until they are closed; else they go at once.
@MainActor @_cdecl("standin_keep_sheets")
public func standin_keep_sheets(_ isKept: Bool) { isPersonSlow = isKept }

/// What is shown over the host's controller, from the lowest to the highest. To be freed.
@MainActor @_cdecl("standin_presented")
public func standin_presented() -> UnsafeMutablePointer<CChar>? {
    let presented = sequence(first: root, next: { $0?.presentedViewController }).compactMap { $0?.standinContent }
    return strdup(presented.map { "\($0.kind) \($0.content)" }.joined(separator: " > "))
}

/// The person closes or swipes away what is on top.
@MainActor @_cdecl("standin_close_top")
public func standin_close_top() {
    let sheet = top
    sheet?.presentingViewController?.dismiss(animated: true)
}

/// The host shows something of its own.
@MainActor @_cdecl("standin_present_alert")
public func standin_present_alert() { top?.present(UIAlertController(), animated: true) }

/// The host takes away whatever is shown.
@MainActor @_cdecl("standin_dismiss_all")
public func standin_dismiss_all() { root?.dismiss(animated: true) }
