import ARKit
import Phone

public protocol RoomCaptureSessionDelegate: AnyObject {
    func captureSession(_ session: RoomCaptureSession, didStartWith configuration: RoomCaptureSession.Configuration)
    func captureSession(_ session: RoomCaptureSession, didUpdate room: CapturedRoom)
    func captureSession(_ session: RoomCaptureSession, didAdd room: CapturedRoom)
    func captureSession(_ session: RoomCaptureSession, didChange room: CapturedRoom)
    func captureSession(_ session: RoomCaptureSession, didRemove room: CapturedRoom)
    func captureSession(_ session: RoomCaptureSession, didProvide instruction: RoomCaptureSession.Instruction)
    func captureSession(_ session: RoomCaptureSession, didEndWith data: CapturedRoomData, error: (any Error)?)
}

extension RoomCaptureSessionDelegate {
    public func captureSession(_ session: RoomCaptureSession, didStartWith configuration: RoomCaptureSession.Configuration) {}
    public func captureSession(_ session: RoomCaptureSession, didUpdate room: CapturedRoom) {}
    public func captureSession(_ session: RoomCaptureSession, didAdd room: CapturedRoom) {}
    public func captureSession(_ session: RoomCaptureSession, didChange room: CapturedRoom) {}
    public func captureSession(_ session: RoomCaptureSession, didRemove room: CapturedRoom) {}
    public func captureSession(_ session: RoomCaptureSession, didProvide instruction: RoomCaptureSession.Instruction) {}
    public func captureSession(_ session: RoomCaptureSession, didEndWith data: CapturedRoomData, error: (any Error)?) {}
}

public final class RoomCaptureSession: @unchecked Sendable {
    public struct Configuration {
        public var isCoachingEnabled = true
        public init() {}
    }
    public enum Instruction { case moveCloseToWall, moveAwayFromWall, slowDown, turnOnLight, normal, lowTexture }

    public let arSession: ARSession
    public weak var delegate: (any RoomCaptureSessionDelegate)? {
        get { lock.withLock { kept } }
        set { lock.withLock { kept = newValue } }
    }
    private let lock = NSLock()
    private weak var kept: (any RoomCaptureSessionDelegate)?
    weak var view: RoomCaptureView?  // whose session it is
    private let session: DeviceObject
    private var listener: DeviceObject?
    private var configuration = Configuration()  // of the last run; with the lock

    init(standin: DeviceObject) {
        session = standin
        arSession = ARSession(standin: DeviceObject(device_session_ar_session(session.raw)))
        listener = DeviceObject(device_session_listen(session.raw, callback { [weak self] event in
            self?.tell(event!.assumingMemoryBound(to: device_session_event.self).pointee)
        }))
    }
    public convenience init() { self.init(standin: DeviceObject(device_session_create(nil))) }
    @available(iOS 17.0, *) public convenience init(arSession: ARSession? = nil) {
        self.init(standin: DeviceObject(device_session_create(arSession?.standin.raw)))
    }

    public func run(configuration: Configuration) {
        lock.withLock { self.configuration = configuration }
        device_session_run(session.raw, configuration.isCoachingEnabled)
    }
    public func stop() { device_session_stop(session.raw, true) }
    @available(iOS 17.0, *) public func stop(pauseARSession: Bool = true) { device_session_stop(session.raw, pauseARSession) }

    private func tell(_ event: device_session_event) {
        switch Int(event.kind) {
        case DEVICE_DID_START: delegate?.captureSession(self, didStartWith: lock.withLock { configuration })
        case DEVICE_DID_UPDATE: delegate?.captureSession(self, didUpdate: CapturedRoom(event))
        case DEVICE_DID_ADD: delegate?.captureSession(self, didAdd: CapturedRoom(event))
        case DEVICE_DID_CHANGE: delegate?.captureSession(self, didChange: CapturedRoom(event))
        case DEVICE_DID_REMOVE: delegate?.captureSession(self, didRemove: CapturedRoom(event))
        case DEVICE_DID_PROVIDE: delegate?.captureSession(self, didProvide: Instruction(numbered: event.instruction))
        default:
            delegate?.captureSession(self, didEndWith: CapturedRoomData(), error: event.text.map { DeviceError($0) })
            view?.sessionEnded()
        }
    }
}

extension RoomCaptureSession.Instruction {
    /// The last one of the device's is a case of a later system, which no name stands for here either.
    init(numbered number: Int32) { self = unsafeBitCast(UInt8(number), to: Self.self) }
}
