@_exported import SceneKit
@_exported import simd

public protocol ARSessionObserver {}
public protocol ARSessionDelegate: ARSessionObserver, NSObjectProtocol {}

public final class ARSession: NSObject, @unchecked Sendable {
    public weak var delegate: (any ARSessionDelegate)?
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
}

public protocol ARSCNViewDelegate: ARSessionObserver {}

public final class ARSCNView: SCNView {
    public var session = ARSession()
    public weak var delegate: (any ARSCNViewDelegate & AnyObject)?
    public var automaticallyUpdatesLighting = true
    public var rendersCameraGrain = true
    public var rendersMotionBlur = false
}
