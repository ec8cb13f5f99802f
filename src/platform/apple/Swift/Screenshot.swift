import Foundation
import UIKit
import VantorelSwift

struct ScreenshotError: LocalizedError {
    var errorDescription: String? { "the window could not be drawn" }
}

@MainActor @_cdecl("vantorel_swift_window_jpeg")
public func vantorel_swift_window_jpeg(_ window: vantorel_swift_handle, _ bytes: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer) -> Bool {
    let window = borrowed(window, as: UIWindow.self)
    var isDrawn = false
    // Layers that the GPU fills, as the host's and the camera's, are drawn only after screen updates.
    let jpeg = UIGraphicsImageRenderer(bounds: window.bounds).jpegData(withCompressionQuality: 0.9) { _ in
        isDrawn = window.drawHierarchy(in: window.bounds, afterScreenUpdates: true)
    }
    return succeeds(orWriteTo: error) {
        guard isDrawn else { throw ScreenshotError() }
        write(jpeg, to: bytes)
    }
}
