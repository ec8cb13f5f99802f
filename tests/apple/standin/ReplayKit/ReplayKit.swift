// The device's screen recorder.
import Phone

public final class RPScreenRecorder: NSObject, @unchecked Sendable {
    public class func shared() -> RPScreenRecorder { recorder }
    public var isMicrophoneEnabled = true

    /// Stops where the person would be asked for the microphone.
    public func startRecording(handler: (((any Error)?) -> Void)? = nil) {
        precondition(!isMicrophoneEnabled)
        device_recorder_start(telling(handler))
    }
    /// Replaces no file.
    public func stopRecording(withOutput url: URL, completionHandler: (((any Error)?) -> Void)? = nil) {
        precondition(!FileManager.default.fileExists(atPath: url.path))
        device_recorder_stop(url.path, telling(completionHandler))
    }

    private func telling(_ handler: (((any Error)?) -> Void)?) -> device_callback {
        callback { error in handler?(error.map(DeviceError.init)) }
    }
}

private let recorder = RPScreenRecorder()
