// A camera with a torch.
import Foundation

public struct AVMediaType: RawRepresentable, Hashable, Sendable {
    public let rawValue: String
    public init(rawValue: String) { self.rawValue = rawValue }
    public static let video = AVMediaType(rawValue: "vide")
}

public final class AVCaptureDevice: NSObject, @unchecked Sendable {
    public enum TorchMode: Int, Sendable { case off, on, auto }

    public class func `default`(for mediaType: AVMediaType) -> AVCaptureDevice? { mediaType == .video ? camera : nil }
    public private(set) var hasTorch: Bool
    public func lockForConfiguration() throws {
        if isLockRefused { throw CocoaError(.featureUnsupported) }
        log += "lock "
    }
    public var torchMode = TorchMode.off { didSet { log += "\(torchMode) " } }
    public func unlockForConfiguration() { log += "unlock " }

    fileprivate let isLockRefused: Bool
    fileprivate init(hasTorch: Bool, isLockRefused: Bool) { (self.hasTorch, self.isLockRefused) = (hasTorch, isLockRefused) }
}

nonisolated(unsafe) private var camera: AVCaptureDevice?
nonisolated(unsafe) private var log = ""

// ---- Steering ----

@_cdecl("standin_remove_camera")
public func standin_remove_camera() { camera = nil }

@_cdecl("standin_connect_camera")
public func standin_connect_camera(_ hasTorch: Bool, _ isLockRefused: Bool) { camera = AVCaptureDevice(hasTorch: hasTorch, isLockRefused: isLockRefused) }

/// What was done to cameras since the last call. To be freed.
@_cdecl("standin_camera_log")
public func standin_camera_log() -> UnsafeMutablePointer<CChar>? {
    defer { log = "" }
    return strdup(log)
}
