@_exported import SceneKit
@_exported import simd
import Phone

public protocol ARSessionObserver: NSObjectProtocol {}
public protocol ARSessionDelegate: ARSessionObserver {}

public final class ARCamera: NSObject {
    public enum TrackingState {
        public enum Reason { case initializing, relocalizing, excessiveMotion, insufficientFeatures }
        case notAvailable, normal
        case limited(Reason)
    }
    public let transform: simd_float4x4
    public let trackingState: TrackingState
    private let session: DeviceObject

    init?(_ session: DeviceObject) {
        guard let pose = matrix({ device_ar_session_transform(session.raw, $0) }) else { return nil }
        (self.session, transform) = (session, pose)
        trackingState = device_ar_session_is_tracking_normal(session.raw) ? .normal : .limited(.relocalizing)
    }
    public func projectionMatrix(for orientation: UIInterfaceOrientation, viewportSize: CGSize, zNear: CGFloat, zFar: CGFloat) -> simd_float4x4 {
        let turned = Int32(deviceOrientations.firstIndex(of: orientation) ?? 0)
        return matrix { device_ar_session_projection(session.raw, turned, viewportSize.width, viewportSize.height, zNear, zFar, $0) }!
    }
}

private func matrix(_ read: (UnsafeMutablePointer<Float>) -> Bool) -> simd_float4x4? {
    var elements = simd_float4x4()
    let isThere = withUnsafeMutableBytes(of: &elements) { read($0.assumingMemoryBound(to: Float.self).baseAddress!) }
    return isThere ? elements : nil
}

public final class ARFrame: NSObject {
    public let camera: ARCamera
    init(_ camera: ARCamera) { self.camera = camera }
}

public final class ARWorldMap: NSObject, NSSecureCoding, @unchecked Sendable {
    let map: DeviceObject
    init(_ map: DeviceObject) { self.map = map }
    public static var supportsSecureCoding: Bool { true }
    public required init?(coder: NSCoder) {
        guard let bytes = coder.decodeObject(of: NSData.self, forKey: "map") else { return nil }
        guard let map = device_map_unarchive(bytes.bytes, bytes.length) else { return nil }
        self.map = DeviceObject(map)
    }
    /// What the archive seems to be of.
    public override class func classForKeyedUnarchiver() -> AnyClass {
        if fails("unarchive") { return DamagedMap.self }
        return fails("unarchiveNone") ? NoMap.self : self
    }
    public func encode(with coder: NSCoder) {
        var error: UnsafeMutablePointer<CChar>?
        let bytes = data(device_map_archive(map.raw, &error))
        do { try orThrow(error) } catch { coder.failWithError(error) }
        coder.encode(bytes.map { $0 as NSData }, forKey: "map")
    }
}

/// Cannot be made from an archive.
final class DamagedMap: NSObject, NSSecureCoding {
    static var supportsSecureCoding: Bool { true }
    init?(coder: NSCoder) { nil }
    func encode(with coder: NSCoder) {}
}

final class NoMap: NSObject, NSSecureCoding {
    static var supportsSecureCoding: Bool { true }
    init(coder: NSCoder) {}
    func encode(with coder: NSCoder) {}
}

public final class ARSession: NSObject, @unchecked Sendable {
    public struct RunOptions: OptionSet, Sendable {
        public let rawValue: UInt
        public init(rawValue: UInt) { self.rawValue = rawValue }
        public static let resetTracking = RunOptions(rawValue: 1)
        public static let removeExistingAnchors = RunOptions(rawValue: 2)
    }

    public let standin: DeviceObject
    public init(standin: DeviceObject) { self.standin = standin }
    public override convenience init() { self.init(standin: DeviceObject(device_ar_session_create())) }

    public weak var delegate: (any ARSessionDelegate)? {
        didSet { device_ar_session_set_delegate(standin.raw, delegate != nil) }
    }
    public func run(_ configuration: ARConfiguration, options: RunOptions = []) {
        precondition(options.isEmpty)
        device_ar_session_run(standin.raw, (configuration as! ARWorldTrackingConfiguration).initialWorldMap?.map.raw)
    }
    public var currentFrame: ARFrame? { ARCamera(standin).map(ARFrame.init) }
    public func getCurrentWorldMap(completionHandler: @escaping @Sendable (ARWorldMap?, (any Error)?) -> Void) {
        device_ar_session_get_map(standin.raw, callback { map in
            let map = map.map { ARWorldMap(DeviceObject(UnsafeMutableRawPointer(mutating: $0))) }
            completionHandler(map, map == nil ? CocoaError(.featureUnsupported) : nil)
        })
    }
}

open class ARConfiguration: NSObject {
    public struct SceneReconstruction: OptionSet, Sendable {
        public let rawValue: UInt
        public init(rawValue: UInt) { self.rawValue = rawValue }
        public static let mesh = SceneReconstruction(rawValue: 1)
    }
}

public final class ARWorldTrackingConfiguration: ARConfiguration {
    public class func supportsSceneReconstruction(_ sceneReconstruction: SceneReconstruction) -> Bool { device_has_lidar() }
    public var initialWorldMap: ARWorldMap?
}

public protocol ARSCNViewDelegate: SCNSceneRendererDelegate, ARSessionObserver {}

public final class ARSCNView: SCNView {
    public var session = ARSession() { didSet { hasSession = true } }
    public weak var delegate: (any ARSCNViewDelegate)?
    public var automaticallyUpdatesLighting = true
    public var rendersCameraGrain = true
    public var rendersMotionBlur = false
    private var hasSession = false
    private let view = DeviceObject(device_camera_view_create())

    public override var standin: DeviceObject? { view }
    public override func settingsChanged() {
        var settings = device_camera_view()
        settings.frame = device_rect(frame)
        (settings.hasSession, settings.hasDelegate) = (hasSession && scene != nil, delegate != nil)
        settings.antialiasingMode = Int32(antialiasingMode.rawValue)
        settings.automaticallyUpdatesLighting = automaticallyUpdatesLighting
        settings.rendersCameraGrain = rendersCameraGrain
        settings.rendersMotionBlur = rendersMotionBlur
        settings.preferredFramesPerSecond = Int32(preferredFramesPerSecond)
        device_camera_view_note(&settings)
    }
}

// ---- For tests ----

/// What the host hands over for vantorelDeviceARSession; retained.
@_cdecl("standin_host_ar_session")
public func standin_host_ar_session() -> UnsafeMutableRawPointer {
    Unmanaged.passRetained(ARSession(standin: DeviceObject(device_ar_session_of_host()))).toOpaque()
}

/// Writes an archive of something else.
@_cdecl("standin_archive_no_map")
public func standin_archive_no_map(_ path: UnsafePointer<CChar>) {
    let bytes = try! NSKeyedArchiver.archivedData(withRootObject: NSString(string: "no map"), requiringSecureCoding: true)
    try! bytes.write(to: URL(fileURLWithPath: String(cString: path)))
}
