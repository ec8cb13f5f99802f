import ARKit
import Foundation
import UIKit

public protocol RoomCaptureViewDelegate: NSCoding {
    func captureView(shouldPresent roomDataForProcessing: CapturedRoomData, error: (any Error)?) -> Bool
    func captureView(didPresent processedResult: CapturedRoom, error: (any Error)?)
}

extension RoomCaptureViewDelegate {
    public func captureView(shouldPresent roomDataForProcessing: CapturedRoomData, error: (any Error)?) -> Bool { true }
    public func captureView(didPresent processedResult: CapturedRoom, error: (any Error)?) {}
}

/// Asks its delegate when the session has ended; which may be after everybody else has dropped the view.
@MainActor @preconcurrency public final class RoomCaptureView: UIView {
    public private(set) var captureSession: RoomCaptureSession! = RoomCaptureSession()
    public weak var delegate: (any RoomCaptureViewDelegate & AnyObject)?
    public var isModelEnabled = true {
        didSet { if !isModelEnabled { modelView.removeFromSuperview() } }
    }
    private let modelView = ModelView()

    public override init(frame: CGRect) {
        super.init(frame: frame)
        addSubview(UIView())
        addSubview(CoachingView())
        addSubview(modelView)
        captureSession.view = self
    }
    nonisolated func sessionEnded() {
        DispatchQueue.main.async { [self] in
            asked += 1
            if delegate?.captureView(shouldPresent: CapturedRoomData(), error: nil) != false { presented += 1 }
        }
    }
}

final class CoachingView: UIView {}
final class ModelView: UIView {}

// ---- Steering ----

@MainActor private var asked: Int32 = 0, presented: Int32 = 0

/// How many scan views have asked, and how many have shown their result.
@MainActor @_cdecl("standin_scan_views_asked")
public func standin_scan_views_asked() -> Int32 { asked }
@MainActor @_cdecl("standin_scan_views_presented")
public func standin_scan_views_presented() -> Int32 { presented }
