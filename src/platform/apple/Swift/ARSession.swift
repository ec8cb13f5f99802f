import ARKit
import Foundation
import VantorelSwift

/// Takes a delegate's place and acts on nothing.
final class IdleDelegate: NSObject, ARSessionDelegate, ARSCNViewDelegate {}

let idleDelegate = IdleDelegate()  // delegates are held weakly

@_cdecl("vantorel_swift_ar_session_set_idle_delegate")
public func vantorel_swift_ar_session_set_idle_delegate(_ arSession: vantorel_swift_handle) {
    borrowed(arSession, as: ARSession.self).delegate = idleDelegate
}

// ---- The camera ----

/// In the border's order, which is not that of UIKit's numbers.
let orientations: [UIInterfaceOrientation] = [.unknown, .portrait, .portraitUpsideDown, .landscapeLeft, .landscapeRight]

/// Not to be kept: held frames stall the camera.
func camera(_ arSession: vantorel_swift_handle) -> ARCamera? { borrowed(arSession, as: ARSession.self).currentFrame?.camera }

@_cdecl("vantorel_swift_ar_session_camera_transform")
public func vantorel_swift_ar_session_camera_transform(_ arSession: vantorel_swift_handle, _ matrix: UnsafeMutablePointer<vantorel_swift_float4x4>) -> Bool {
    guard let camera = camera(arSession) else { return false }
    matrix.pointee = unsafeBitCast(camera.transform, to: vantorel_swift_float4x4.self)
    return true
}

@_cdecl("vantorel_swift_ar_session_projection_matrix")
public func vantorel_swift_ar_session_projection_matrix(
    _ arSession: vantorel_swift_handle, _ request: UnsafePointer<vantorel_swift_projection_request>, _ matrix: UnsafeMutablePointer<vantorel_swift_float4x4>
) -> Bool {
    guard let camera = camera(arSession) else { return false }
    let request = request.pointee
    let projection = camera.projectionMatrix(
        for: orientations[Int(request.orientation)], viewportSize: CGSize(width: request.viewportWidth, height: request.viewportHeight),
        zNear: request.zNear, zFar: request.zFar)
    matrix.pointee = unsafeBitCast(projection, to: vantorel_swift_float4x4.self)
    return true
}

@_cdecl("vantorel_swift_ar_session_is_tracking_normal")
public func vantorel_swift_ar_session_is_tracking_normal(_ arSession: vantorel_swift_handle) -> Bool {
    if case .normal? = camera(arSession)?.trackingState { return true } else { return false }
}

// ---- World tracking and world maps ----

@_cdecl("vantorel_swift_ar_session_run")
public func vantorel_swift_ar_session_run(_ arSession: vantorel_swift_handle, _ worldMap: vantorel_swift_handle?) {
    let configuration = ARWorldTrackingConfiguration()
    configuration.initialWorldMap = worldMap.map { borrowed($0) }
    borrowed(arSession, as: ARSession.self).run(configuration, options: [])
}

@_cdecl("vantorel_swift_ar_session_get_current_world_map")
public func vantorel_swift_ar_session_get_current_world_map(_ arSession: vantorel_swift_handle, _ completion: UnsafeMutableRawPointer) {
    let context = Context(completion)
    borrowed(arSession, as: ARSession.self).getCurrentWorldMap { map, _ in vantorel_core_complete(context.raw, map.map(retained)) }
}

@_cdecl("vantorel_swift_world_map_archive")
public func vantorel_swift_world_map_archive(_ worldMap: vantorel_swift_handle, _ bytes: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) {
        write(try NSKeyedArchiver.archivedData(withRootObject: borrowed(worldMap, as: ARWorldMap.self), requiringSecureCoding: true), to: bytes)
    }
}

@_cdecl("vantorel_swift_world_map_unarchive")
public func vantorel_swift_world_map_unarchive(
    _ bytes: UnsafeRawPointer?, _ length: Int, _ object: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer
) -> Bool {
    succeeds(orWriteTo: error) {
        guard let map = try NSKeyedUnarchiver.unarchivedObject(ofClass: ARWorldMap.self, from: data(bytes, length)) else { return }
        vantorel_core_object(object, retained(map))
    }
}
