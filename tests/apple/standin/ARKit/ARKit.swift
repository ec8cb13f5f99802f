@_exported import SceneKit
@_exported import simd

public protocol ARSessionObserver: NSObjectProtocol {}
public protocol ARSessionDelegate: ARSessionObserver {}

public final class ARCamera: NSObject {
    public enum TrackingState {
        public enum Reason { case initializing, relocalizing, excessiveMotion, insufficientFeatures }
        case notAvailable, normal
        case limited(Reason)
    }
    public let trackingState: TrackingState
    public let transform: simd_float4x4

    init(_ trackingState: TrackingState) {
        self.trackingState = trackingState
        var pose = simd_float4x4()
        pose.columns = (simd_float4(0, 1, 0, 0), simd_float4(-1, 0, 0, 0), simd_float4(0, 0, 1, 0), simd_float4(2, 3, 4, 1))
        transform = pose
    }
    /// No projection: in its first row the orientation and the size, in the next the planes.
    public func projectionMatrix(for orientation: UIInterfaceOrientation, viewportSize: CGSize, zNear: CGFloat, zFar: CGFloat) -> simd_float4x4 {
        var request = simd_float4x4()
        request.columns.0 = simd_float4(Float(orientation.rawValue), Float(zNear), 0, 0)
        request.columns.1 = simd_float4(Float(viewportSize.width), Float(zFar), 0, 0)
        request.columns.2 = simd_float4(Float(viewportSize.height), 0, 0, 0)
        return request
    }
}

public final class ARFrame: NSObject {
    public let camera: ARCamera
    init(_ camera: ARCamera) { self.camera = camera }
}

/// Counts the maps before it.
public final class ARWorldMap: NSObject, NSSecureCoding, @unchecked Sendable {
    let generation: Int32
    init(generation: Int32) { self.generation = generation }
    public static var supportsSecureCoding: Bool { true }
    public required init?(coder: NSCoder) { generation = coder.decodeInt32(forKey: "generation") }
    public func encode(with coder: NSCoder) { coder.encode(generation, forKey: "generation") }
}

/// Its tracking is normal at once; after a run from a map only for the second one who asks.
public final class ARSession: NSObject, @unchecked Sendable {
    public struct RunOptions: OptionSet, Sendable {
        public let rawValue: UInt
        public init(rawValue: UInt) { self.rawValue = rawValue }
        public static let resetTracking = RunOptions(rawValue: 1)
        public static let removeExistingAnchors = RunOptions(rawValue: 2)
    }

    public weak var delegate: (any ARSessionDelegate)?
    private let lock = NSLock()
    private var generation: Int32 = 1
    private var trackings: [ARCamera.TrackingState] = []

    public func run(_ configuration: ARConfiguration, options: RunOptions = []) {
        guard options.isEmpty, let map = (configuration as? ARWorldTrackingConfiguration)?.initialWorldMap else { return }
        lock.withLock { (generation, trackings) = (map.generation + 1, [.limited(.relocalizing)]) }
    }
    public var currentFrame: ARFrame? {
        lock.withLock {
            if !standinHasFrames { return nil }
            return ARFrame(ARCamera(trackings.isEmpty ? .normal : trackings.removeFirst()))
        }
    }
    public func getCurrentWorldMap(completionHandler: @escaping @Sendable (ARWorldMap?, (any Error)?) -> Void) {
        let map = standinHasFrames ? ARWorldMap(generation: lock.withLock { generation }) : nil
        DispatchQueue.global().async { completionHandler(map, map == nil ? CocoaError(.featureUnsupported) : nil) }
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
    public class func supportsSceneReconstruction(_ sceneReconstruction: SceneReconstruction) -> Bool { true }
    public var initialWorldMap: ARWorldMap?
}

public protocol ARSCNViewDelegate: SCNSceneRendererDelegate, ARSessionObserver {}

public final class ARSCNView: SCNView {
    public var session = ARSession()
    public weak var delegate: (any ARSCNViewDelegate)?
    public var automaticallyUpdatesLighting = true
    public var rendersCameraGrain = true
    public var rendersMotionBlur = false
}

// ---- Steering ----

nonisolated(unsafe) private var standinHasFrames = false  // set between scans

/// Whether sessions have frames, and therefore maps.
@_cdecl("standin_set_has_frames")
public func standin_set_has_frames(_ hasFrames: Bool) { standinHasFrames = hasFrames }

/// Of the map that the file holds.
@_cdecl("standin_map_generation")
public func standin_map_generation(_ path: UnsafePointer<CChar>) -> Int32 {
    let bytes = try! Data(contentsOf: URL(fileURLWithPath: String(cString: path)))
    return try! NSKeyedUnarchiver.unarchivedObject(ofClass: ARWorldMap.self, from: bytes)!.generation
}

/// Writes an archive of something else.
@_cdecl("standin_archive_no_map")
public func standin_archive_no_map(_ path: UnsafePointer<CChar>) {
    let bytes = try! NSKeyedArchiver.archivedData(withRootObject: NSString(string: "no map"), requiringSecureCoding: true)
    try! bytes.write(to: URL(fileURLWithPath: String(cString: path)))
}
