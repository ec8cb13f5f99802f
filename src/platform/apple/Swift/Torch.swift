import AVFoundation
import VantorelSwift

@_cdecl("vantorel_swift_camera_default")
public func vantorel_swift_camera_default() -> vantorel_swift_handle? { AVCaptureDevice.default(for: .video).map(retained) }

@_cdecl("vantorel_swift_camera_has_torch")
public func vantorel_swift_camera_has_torch(_ camera: vantorel_swift_handle) -> Bool { borrowed(camera, as: AVCaptureDevice.self).hasTorch }

@_cdecl("vantorel_swift_camera_lock")
public func vantorel_swift_camera_lock(_ camera: vantorel_swift_handle, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) { try borrowed(camera, as: AVCaptureDevice.self).lockForConfiguration() }
}

@_cdecl("vantorel_swift_camera_set_torch")
public func vantorel_swift_camera_set_torch(_ camera: vantorel_swift_handle, _ on: Bool) {
    borrowed(camera, as: AVCaptureDevice.self).torchMode = on ? .on : .off
}

@_cdecl("vantorel_swift_camera_unlock")
public func vantorel_swift_camera_unlock(_ camera: vantorel_swift_handle) { borrowed(camera, as: AVCaptureDevice.self).unlockForConfiguration() }
