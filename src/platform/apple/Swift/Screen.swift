// The host's window, our view controller and the camera view.
import ARKit
import SceneKit
import UIKit
import VantorelSwift

extension CGRect {
    init(_ rect: vantorel_swift_rect) { self.init(x: rect.x, y: rect.y, width: rect.width, height: rect.height) }
}

extension vantorel_swift_rect {
    init(_ rect: CGRect) { self.init(x: rect.minX, y: rect.minY, width: rect.width, height: rect.height) }
}

@MainActor var firstWindow: UIWindow? { (UIApplication.shared.connectedScenes.first as? UIWindowScene)?.windows.first }

@MainActor @_cdecl("vantorel_swift_first_window")
public func vantorel_swift_first_window() -> vantorel_swift_handle? { firstWindow.map(retained) }

@MainActor @_cdecl("vantorel_swift_screen_bounds")
public func vantorel_swift_screen_bounds() -> vantorel_swift_rect { vantorel_swift_rect(UIScreen.main.bounds) }

@MainActor @_cdecl("vantorel_swift_interface_orientation")
public func vantorel_swift_interface_orientation() -> Int32 {
    let orientation = firstWindow?.windowScene?.interfaceOrientation ?? .unknown
    return Int32(orientations.firstIndex(of: orientation) ?? 0)
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

/// The library's own. `sceneView` is there for whoever reads or writes it by name; the core keeps it.
final class ViewController: UIViewController {
    var sceneViewSlot: Context?

    #if canImport(ObjectiveC)
    @objc
    #endif
    dynamic var sceneView: ARSCNView? {
        get {
            guard let slot = sceneViewSlot, let view = vantorel_core_scene_view(slot.raw) else { return nil }
            defer { vantorel_swift_release(view) }
            return borrowed(view)
        }
        set { sceneViewSlot.map { vantorel_core_set_scene_view($0.raw, newValue.map(retained)) } }
    }
}

@MainActor @_cdecl("vantorel_swift_view_controller_create")
public func vantorel_swift_view_controller_create() -> vantorel_swift_handle { retained(ViewController()) }

@MainActor @_cdecl("vantorel_swift_view_controller_expose_scene_view")
public func vantorel_swift_view_controller_expose_scene_view(_ controller: vantorel_swift_handle, _ slot: UnsafeMutableRawPointer) {
    borrowed(controller, as: ViewController.self).sceneViewSlot = Context(slot)
}

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
    vantorel_swift_rect(borrowed(controller, as: UIViewController.self).view.bounds)
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
    let view = ARSCNView(frame: CGRect(settings.frame))
    view.session = borrowed(arSession)
    view.scene = SCNScene()
    view.delegate = idleDelegate
    view.antialiasingMode = SCNAntialiasingMode(rawValue: UInt(settings.antialiasingMode)) ?? .none
    view.automaticallyUpdatesLighting = settings.automaticallyUpdatesLighting
    view.rendersCameraGrain = settings.rendersCameraGrain
    view.rendersMotionBlur = settings.rendersMotionBlur
    view.preferredFramesPerSecond = Int(settings.preferredFramesPerSecond)
    return retained(view)
}

@MainActor @_cdecl("vantorel_swift_view_subview_count")
public func vantorel_swift_view_subview_count(_ view: vantorel_swift_handle) -> Int { borrowed(view, as: UIView.self).subviews.count }

@MainActor @_cdecl("vantorel_swift_view_hide_subview")
public func vantorel_swift_view_hide_subview(_ view: vantorel_swift_handle, _ index: Int) {
    borrowed(view, as: UIView.self).subviews[index].isHidden = true
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
