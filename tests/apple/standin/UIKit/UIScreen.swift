/// In no order that anybody could guess: landscape left is 4.
public enum UIInterfaceOrientation: Int, Sendable {
    case unknown = 0, portrait = 1, portraitUpsideDown = 2, landscapeLeft = 4, landscapeRight = 3
}

@MainActor public final class UIScreen: NSObject {
    public static let main = UIScreen()
    public let bounds = CGRect(x: 0, y: 0, width: 852, height: 393)
}

extension UIWindowScene {
    public var interfaceOrientation: UIInterfaceOrientation { .landscapeLeft }
}
