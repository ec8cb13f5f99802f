import ARKit
import Foundation

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

/// Every run scans the room that standin_scan gave, in one update, on a queue of its own.
public final class RoomCaptureSession: @unchecked Sendable {
    public struct Configuration {
        public var isCoachingEnabled = true
        public init() {}
    }
    public enum Instruction { case moveCloseToWall, moveAwayFromWall, slowDown, turnOnLight, normal, lowTexture }

    public let arSession: ARSession
    public weak var delegate: (any RoomCaptureSessionDelegate)?
    weak var view: RoomCaptureView?  // whose session it is
    private let queue = DispatchQueue(label: "stand-in session")

    public init() { arSession = ARSession() }
    @available(iOS 17.0, *) public init(arSession: ARSession? = nil) { self.arSession = arSession ?? ARSession() }

    public func run(configuration: Configuration) {
        queue.async { [self] in
            delegate?.captureSession(self, didStartWith: configuration)
            if configuration.isCoachingEnabled { delegate?.captureSession(self, didProvide: .turnOnLight) }
            guard let room = scannedRoom else { return }
            delegate?.captureSession(self, didAdd: room)
            delegate?.captureSession(self, didUpdate: room)
        }
    }
    public func stop() {
        let view = view
        queue.async { [self] in
            delegate?.captureSession(self, didEndWith: CapturedRoomData(), error: nil)
            view?.sessionEnded()
        }
    }
    @available(iOS 17.0, *) public func stop(pauseARSession: Bool = true) { stop() }
}

// ---- Steering ----

nonisolated(unsafe) var scannedRoom: CapturedRoom?  // set before a run

/// The room that every later run scans. Stops where the file is no room.
@_cdecl("standin_scan")
public func standin_scan(_ path: UnsafePointer<CChar>) {
    let bytes = try! Data(contentsOf: URL(fileURLWithPath: String(cString: path)))
    scannedRoom = try! JSONDecoder().decode(CapturedRoom.self, from: bytes)
}

/// What Foundation writes for that room, by malloc.
@_cdecl("standin_room_text")
public func standin_room_text() -> UnsafeMutablePointer<CChar>? {
    let encoder = JSONEncoder()
    encoder.outputFormatting = [.prettyPrinted, .sortedKeys]
    return strdup(String(decoding: try! encoder.encode(scannedRoom!), as: UTF8.self))
}
