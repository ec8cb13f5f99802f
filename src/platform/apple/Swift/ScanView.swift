import Foundation
import RoomPlan
import UIKit
import VantorelSwift

/// RoomPlan asks its delegates to be codable; nobody codes them.
final class ScanViewDelegate: NSObject, RoomCaptureViewDelegate {
    let context: Context
    init(_ context: Context) { self.context = context }

    required init?(coder: NSCoder) { nil }
    func encode(with coder: NSCoder) {}

    func captureView(shouldPresent data: CapturedRoomData, error: (any Error)?) -> Bool { vantorel_core_scan_view_should_present(context.raw) }
    func captureView(didPresent room: CapturedRoom, error: (any Error)?) { vantorel_core_scan_view_did_present(context.raw) }
}

@_cdecl("vantorel_swift_scan_view_delegate_create")
public func vantorel_swift_scan_view_delegate_create(_ context: UnsafeMutableRawPointer) -> vantorel_swift_handle {
    retained(ScanViewDelegate(Context(context)))
}

@MainActor @_cdecl("vantorel_swift_scan_view_create")
public func vantorel_swift_scan_view_create() -> vantorel_swift_handle { retained(RoomCaptureView(frame: .zero)) }

@MainActor @_cdecl("vantorel_swift_scan_view_create_framed")
public func vantorel_swift_scan_view_create_framed(
    _ frame: vantorel_swift_rect, _ isModelEnabled: Bool, _ delegate: vantorel_swift_handle
) -> vantorel_swift_handle {
    let view = RoomCaptureView(frame: CGRect(frame))
    view.isModelEnabled = isModelEnabled
    view.delegate = borrowed(delegate, as: ScanViewDelegate.self)
    return retained(view)
}

@MainActor @_cdecl("vantorel_swift_scan_view_capture_session")
public func vantorel_swift_scan_view_capture_session(_ view: vantorel_swift_handle) -> vantorel_swift_handle {
    retained(borrowed(view, as: RoomCaptureView.self).captureSession)
}
