// Pictures without pixels: a JPEG whose only segment is a comment that says what was drawn.
import Foundation

open class UIGraphicsRenderer: NSObject {
    fileprivate let bounds: CGRect
    public init(bounds: CGRect) { self.bounds = bounds }
}
open class UIGraphicsRendererContext: NSObject {}
public final class UIGraphicsImageRendererContext: UIGraphicsRendererContext {}

public final class UIGraphicsImageRenderer: UIGraphicsRenderer {
    public func jpegData(withCompressionQuality compressionQuality: CGFloat, actions: (UIGraphicsImageRendererContext) -> Void) -> Data {
        drawn = ""
        actions(UIGraphicsImageRendererContext())
        let comment = "\(drawn), quality \(compressionQuality)"
        return Data([0xFF, 0xD8, 0xFF, 0xFE, 0, UInt8(comment.utf8.count + 2)]) + Data(comment.utf8) + Data([0xFF, 0xD9])
    }
}

extension UIView {
    public func drawHierarchy(in rect: CGRect, afterScreenUpdates afterUpdates: Bool) -> Bool {
        drawn = "\(type(of: self))"
        return !isDrawingRefused
    }
}

nonisolated(unsafe) private var drawn = ""
nonisolated(unsafe) private var isDrawingRefused = false

// ---- Steering ----

@_cdecl("standin_refuse_drawing")
public func standin_refuse_drawing(_ isRefused: Bool) { isDrawingRefused = isRefused }
