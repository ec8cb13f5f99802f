import ARKit
import Foundation
import RoomPlan
import VantorelSwift

/// Forwards every event on the thread it came on.
final class CaptureDelegate: RoomCaptureSessionDelegate {
    let context: Context
    init(_ context: Context) { self.context = context }

    func captureSession(_ session: RoomCaptureSession, didStartWith configuration: RoomCaptureSession.Configuration) {
        vantorel_core_session_did_start(context.raw, retained(session))
    }
    func captureSession(_ session: RoomCaptureSession, didUpdate room: CapturedRoom) {
        vantorel_core_session_did_update(context.raw, retained(Box(room)))
    }
    func captureSession(_ session: RoomCaptureSession, didAdd room: CapturedRoom) {
        vantorel_core_session_did_add(context.raw, retained(Box(room)))
    }
    func captureSession(_ session: RoomCaptureSession, didChange room: CapturedRoom) {
        vantorel_core_session_did_change(context.raw, retained(Box(room)))
    }
    func captureSession(_ session: RoomCaptureSession, didRemove room: CapturedRoom) {
        vantorel_core_session_did_remove(context.raw, retained(Box(room)))
    }
    func captureSession(_ session: RoomCaptureSession, didProvide instruction: RoomCaptureSession.Instruction) {
        vantorel_core_session_did_provide(context.raw, code(instruction))
    }
    func captureSession(_ session: RoomCaptureSession, didEndWith data: CapturedRoomData, error: (any Error)?) {
        vantorel_core_session_did_end(context.raw, error?.localizedDescription)
    }
}

func code(_ instruction: RoomCaptureSession.Instruction) -> Int32 {
    switch instruction {
    case .moveCloseToWall: return Int32(VANTOREL_SWIFT_MOVE_CLOSE_TO_WALL)
    case .moveAwayFromWall: return Int32(VANTOREL_SWIFT_MOVE_AWAY_FROM_WALL)
    case .slowDown: return Int32(VANTOREL_SWIFT_SLOW_DOWN)
    case .turnOnLight: return Int32(VANTOREL_SWIFT_TURN_ON_LIGHT)
    case .normal: return Int32(VANTOREL_SWIFT_NORMAL)
    case .lowTexture: return Int32(VANTOREL_SWIFT_LOW_TEXTURE)
    @unknown default: return Int32(VANTOREL_SWIFT_OTHER_INSTRUCTION)
    }
}

@_cdecl("vantorel_swift_capture_delegate_create")
public func vantorel_swift_capture_delegate_create(_ context: UnsafeMutableRawPointer) -> vantorel_swift_handle {
    retained(CaptureDelegate(Context(context)))
}

@_cdecl("vantorel_swift_capture_session_create")
public func vantorel_swift_capture_session_create(_ arSession: vantorel_swift_handle?) -> vantorel_swift_handle {
    guard #available(iOS 17.0, *), let arSession else { return retained(RoomCaptureSession()) }
    return retained(RoomCaptureSession(arSession: borrowed(arSession)))
}

@_cdecl("vantorel_swift_capture_session_set_delegate")
public func vantorel_swift_capture_session_set_delegate(_ session: vantorel_swift_handle, _ delegate: vantorel_swift_handle) {
    borrowed(session, as: RoomCaptureSession.self).delegate = borrowed(delegate, as: CaptureDelegate.self)
}

@_cdecl("vantorel_swift_capture_session_run")
public func vantorel_swift_capture_session_run(_ session: vantorel_swift_handle, _ isCoachingEnabled: Bool) {
    var configuration = RoomCaptureSession.Configuration()
    configuration.isCoachingEnabled = isCoachingEnabled
    borrowed(session, as: RoomCaptureSession.self).run(configuration: configuration)
}

@_cdecl("vantorel_swift_capture_session_stop")
public func vantorel_swift_capture_session_stop(_ session: vantorel_swift_handle) { borrowed(session, as: RoomCaptureSession.self).stop() }

@_cdecl("vantorel_swift_capture_session_stop_pausing")
public func vantorel_swift_capture_session_stop_pausing(_ session: vantorel_swift_handle, _ pauseARSession: Bool) {
    if #available(iOS 17.0, *) { borrowed(session, as: RoomCaptureSession.self).stop(pauseARSession: pauseARSession) }
}

@_cdecl("vantorel_swift_capture_session_ar_session")
public func vantorel_swift_capture_session_ar_session(_ session: vantorel_swift_handle) -> vantorel_swift_handle {
    retained(borrowed(session, as: RoomCaptureSession.self).arSession)
}
