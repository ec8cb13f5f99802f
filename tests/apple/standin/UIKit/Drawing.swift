// Pictures of the device's window.
import Phone

open class UIGraphicsRenderer: NSObject {
    fileprivate let bounds: CGRect
    public init(bounds: CGRect) { self.bounds = bounds }
}
open class UIGraphicsRendererContext: NSObject {}
public final class UIGraphicsImageRendererContext: UIGraphicsRendererContext {}

@MainActor private var drawn: Data?

public final class UIGraphicsImageRenderer: UIGraphicsRenderer {
    @MainActor public func jpegData(withCompressionQuality compressionQuality: CGFloat, actions: (UIGraphicsImageRendererContext) -> Void) -> Data {
        defer { drawn = nil }
        actions(UIGraphicsImageRendererContext())
        return drawn ?? Data()
    }
}

extension UIView {
    public func drawHierarchy(in rect: CGRect, afterScreenUpdates afterUpdates: Bool) -> Bool {
        drawn = data(device_screenshot())
        return drawn != nil
    }
}
