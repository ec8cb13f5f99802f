import ARKit
import Phone

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
    #if canImport(ObjectiveC)  // whose protocols are of objects alone
    public typealias Delegate = any RoomCaptureViewDelegate
    #else
    public typealias Delegate = any RoomCaptureViewDelegate & AnyObject
    #endif
    public let captureSession: RoomCaptureSession!
    public weak var delegate: Delegate? {
        didSet {
            questioned = delegate
            settingsChanged()
        }
    }
    private nonisolated(unsafe) weak var questioned: Delegate?
    public var isModelEnabled = true { didSet { settingsChanged() } }
    private let view = DeviceObject(device_scan_view_create())

    public override init(frame: CGRect) {
        captureSession = RoomCaptureSession(standin: DeviceObject(device_scan_view_session(view.raw)))
        super.init(frame: frame)
        captureSession.view = self
    }
    private func settingsChanged() { device_scan_view_note(device_rect(frame), isModelEnabled, delegate != nil) }

    public override var standin: DeviceObject? { view }
    public override var subviews: [UIView] {
        (0..<device_scan_view_subview_count(view.raw)).map { ScanSubview(of: view, at: $0) }
    }

    nonisolated func sessionEnded() {
        guard let questioned else { return }
        asked.add(questioned.captureView(shouldPresent: CapturedRoomData(), error: nil) ? 1000 : 1)
    }
}

final class ScanSubview: UIView {
    private let scanView: DeviceObject
    private let index: Int
    init(of scanView: DeviceObject, at index: Int) {
        (self.scanView, self.index) = (scanView, index)
        super.init(frame: .zero)
    }
    override var isHidden: Bool { didSet { device_scan_view_hide_subview(scanView.raw, index) } }
}

// ---- For tests ----

private final class Counter: @unchecked Sendable {
    private let lock = NSLock()
    private var count: Int32 = 0
    func add(_ number: Int32) { lock.withLock { count += number } }
    var value: Int32 { lock.withLock { count } }
}

private let asked = Counter()

/// How many scan views have asked, and were told to show nothing; far more, if one was told otherwise.
@_cdecl("standin_scan_views_asked")
public func standin_scan_views_asked() -> Int32 { asked.value }
