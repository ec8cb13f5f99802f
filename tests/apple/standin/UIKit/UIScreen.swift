import Phone

/// In no order that anybody could guess: landscape left is 4.
public enum UIInterfaceOrientation: Int, Sendable {
    case unknown = 0, portrait = 1, portraitUpsideDown = 2, landscapeLeft = 4, landscapeRight = 3
}

/// In the device's order.
public let deviceOrientations: [UIInterfaceOrientation] = [.unknown, .portrait, .portraitUpsideDown, .landscapeLeft, .landscapeRight]

@MainActor public final class UIScreen: NSObject {
    public static let main = UIScreen()
    public var bounds: CGRect { CGRect(device_screen_bounds()) }
}

extension UIWindowScene {
    public var interfaceOrientation: UIInterfaceOrientation { deviceOrientations[Int(device_screen_orientation())] }
}

extension CGRect {
    init(_ rect: device_rect) { self.init(x: rect.x, y: rect.y, width: rect.width, height: rect.height) }
}

extension device_rect {
    public init(_ rect: CGRect) { self.init(x: rect.minX, y: rect.minY, width: rect.width, height: rect.height) }
}
