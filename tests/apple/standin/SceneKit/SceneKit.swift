@_exported import UIKit

public final class SCNScene: NSObject {}

public protocol SCNSceneRendererDelegate: NSObjectProtocol {}

public enum SCNAntialiasingMode: UInt { case none, multisampling2X, multisampling4X }

@MainActor open class SCNView: UIView {
    public var scene: SCNScene?
    public var antialiasingMode = SCNAntialiasingMode.none
    public var preferredFramesPerSecond = 0 { didSet { settingsChanged() } }
    open func settingsChanged() {}
}
