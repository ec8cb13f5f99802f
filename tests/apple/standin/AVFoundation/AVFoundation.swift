// The device's camera with its torch.
import Phone

public struct AVMediaType: RawRepresentable, Hashable, Sendable {
    public let rawValue: String
    public init(rawValue: String) { self.rawValue = rawValue }
    public static let video = AVMediaType(rawValue: "vide")
}

public final class AVCaptureDevice: NSObject, @unchecked Sendable {
    public enum TorchMode: Int, Sendable { case off, on, auto }

    public class func `default`(for mediaType: AVMediaType) -> AVCaptureDevice? {
        mediaType == .video ? device_camera().map { AVCaptureDevice(DeviceObject($0)) } : nil
    }
    public var hasTorch: Bool { device_camera_has_torch(camera.raw) }
    public func lockForConfiguration() throws {
        try orThrow(device_camera_lock(camera.raw))
        isLocked = true
    }
    /// Stops where Apple's raises an exception.
    public var torchMode = TorchMode.off {
        willSet { precondition(isLocked && hasTorch) }
        didSet { device_camera_set_torch(camera.raw, torchMode == .on) }
    }
    public func unlockForConfiguration() { isLocked = false }

    private let camera: DeviceObject
    private var isLocked = false
    private init(_ camera: DeviceObject) { self.camera = camera }
    deinit { precondition(!isLocked) }
}
