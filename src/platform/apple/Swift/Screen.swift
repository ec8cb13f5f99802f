// The host's window, our view controller and the camera view.
import ARKit
import SceneKit
import UIKit
import VantorelSwift

@MainActor @_cdecl("vantorel_swift_first_window")
public func vantorel_swift_first_window() -> vantorel_swift_handle? {
    let scene = UIApplication.shared.connectedScenes.first as? UIWindowScene
    return (scene?.windows.first).map(retained)
}

@MainActor @_cdecl("vantorel_swift_window_clear_background")
public func vantorel_swift_window_clear_background(_ window: vantorel_swift_handle) {
    borrowed(window, as: UIWindow.self).backgroundColor = .clear
}

@MainActor @_cdecl("vantorel_swift_window_add_subview")
public func vantorel_swift_window_add_subview(_ window: vantorel_swift_handle, _ controller: vantorel_swift_handle) {
    borrowed(window, as: UIWindow.self).addSubview(borrowed(controller, as: UIViewController.self).view)
}

@MainActor @_cdecl("vantorel_swift_window_exchange_first_two_subviews")
public func vantorel_swift_window_exchange_first_two_subviews(_ window: vantorel_swift_handle) {
    borrowed(window, as: UIWindow.self).exchangeSubview(at: 0, withSubviewAt: 1)
}

@MainActor @_cdecl("vantorel_swift_window_root_view_controller")
public func vantorel_swift_window_root_view_controller(_ window: vantorel_swift_handle) -> vantorel_swift_handle? {
    borrowed(window, as: UIWindow.self).rootViewController.map(retained)
}

/// Nothing when it cannot be loaded.
@MainActor func loadedView(_ controller: vantorel_swift_handle) -> UIView? {
    let controller = borrowed(controller, as: UIViewController.self)
    controller.loadViewIfNeeded()
    return controller.viewIfLoaded
}

@MainActor @_cdecl("vantorel_swift_view_controller_create")
public func vantorel_swift_view_controller_create() -> vantorel_swift_handle { retained(UIViewController()) }

@MainActor @_cdecl("vantorel_swift_view_controller_load_view")
public func vantorel_swift_view_controller_load_view(_ controller: vantorel_swift_handle) -> Bool {
    loadedView(controller) != nil
}

@MainActor @_cdecl("vantorel_swift_view_controller_make_transparent")
public func vantorel_swift_view_controller_make_transparent(_ controller: vantorel_swift_handle) -> Bool {
    guard let view = loadedView(controller) else { return false }
    view.isOpaque = false
    view.backgroundColor = .clear
    return true
}

@MainActor @_cdecl("vantorel_swift_view_controller_bounds")
public func vantorel_swift_view_controller_bounds(_ controller: vantorel_swift_handle) -> vantorel_swift_rect {
    let bounds = borrowed(controller, as: UIViewController.self).view.bounds
    return vantorel_swift_rect(x: bounds.minX, y: bounds.minY, width: bounds.width, height: bounds.height)
}

@MainActor @_cdecl("vantorel_swift_view_controller_insert_at_back")
public func vantorel_swift_view_controller_insert_at_back(_ controller: vantorel_swift_handle, _ view: vantorel_swift_handle) {
    borrowed(controller, as: UIViewController.self).view.insertSubview(borrowed(view), at: 0)
}

@MainActor @_cdecl("vantorel_swift_view_controller_ignore_touches")
public func vantorel_swift_view_controller_ignore_touches(_ controller: vantorel_swift_handle) {
    borrowed(controller, as: UIViewController.self).view.isUserInteractionEnabled = false
}

@MainActor @_cdecl("vantorel_swift_view_controller_dismiss_navigation")
public func vantorel_swift_view_controller_dismiss_navigation(_ controller: vantorel_swift_handle) {
    borrowed(controller, as: UIViewController.self).navigationController?.dismiss(animated: false)
}

@MainActor @_cdecl("vantorel_swift_camera_view_create")
public func vantorel_swift_camera_view_create() -> vantorel_swift_handle { retained(ARSCNView()) }

@MainActor @_cdecl("vantorel_swift_camera_view_create_on")
public func vantorel_swift_camera_view_create_on(_ arSession: vantorel_swift_handle, _ settings: UnsafePointer<vantorel_swift_camera_view_settings>) -> vantorel_swift_handle {
    let settings = settings.pointee
    let frame = settings.frame
    let view = ARSCNView(frame: CGRect(x: frame.x, y: frame.y, width: frame.width, height: frame.height))
    view.session = borrowed(arSession)
    view.scene = SCNScene()
    view.antialiasingMode = SCNAntialiasingMode(rawValue: UInt(settings.antialiasingMode)) ?? .none
    view.automaticallyUpdatesLighting = settings.automaticallyUpdatesLighting
    view.rendersCameraGrain = settings.rendersCameraGrain
    view.rendersMotionBlur = settings.rendersMotionBlur
    view.preferredFramesPerSecond = Int(settings.preferredFramesPerSecond)
    return retained(view)
}

@_cdecl("vantorel_swift_view_remove_from_superview")
public func vantorel_swift_view_remove_from_superview(_ view: vantorel_swift_handle) {
    let view = borrowed(view, as: UIView.self)
    if Thread.isMainThread {
        MainActor.assumeIsolated { view.removeFromSuperview() }
    } else {
        DispatchQueue.main.async { view.removeFromSuperview() }
    }
}
