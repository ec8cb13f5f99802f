import Foundation
import ReplayKit
import VantorelSwift

@MainActor @_cdecl("vantorel_swift_recorder_start")
public func vantorel_swift_recorder_start(_ context: UnsafeMutableRawPointer) {
    let context = Context(context)
    let recorder = RPScreenRecorder.shared()
    recorder.isMicrophoneEnabled = false
    recorder.startRecording { @Sendable error in
        vantorel_core_recorder_did_finish(context.raw, error?.localizedDescription)
    }
}

@MainActor @_cdecl("vantorel_swift_recorder_stop")
public func vantorel_swift_recorder_stop(_ path: UnsafePointer<CChar>, _ context: UnsafeMutableRawPointer) {
    let context = Context(context)
    let film = URL(fileURLWithPath: String(cString: path))
    try? FileManager.default.removeItem(at: film)  // the recorder replaces nothing, and tells what stays in its way
    RPScreenRecorder.shared().stopRecording(withOutput: film) { @Sendable error in
        vantorel_core_recorder_did_finish(context.raw, error?.localizedDescription)
    }
}
