// A recorder that asks nobody and films nothing. It answers on a queue of its own.
import Foundation

public final class RPScreenRecorder: NSObject, @unchecked Sendable {
    public class func shared() -> RPScreenRecorder { recorder }
    public var isMicrophoneEnabled = true
    fileprivate var isDeclined = false
    private var runs = false  // on the queue
    private let queue = DispatchQueue(label: "ReplayKit")

    public func startRecording(handler: (((any Error)?) -> Void)? = nil) {
        let isDeclined = isDeclined
        answer(handler) {
            if isDeclined { throw RecordingError(text: "The user declined application recording.") }
            if self.runs { throw RecordingError(text: "Recording runs already.") }
            self.runs = true
        }
    }
    public func stopRecording(withOutput url: URL, completionHandler: (((any Error)?) -> Void)? = nil) {
        let film = "film " + (isMicrophoneEnabled ? "with" : "without") + " microphone"
        answer(completionHandler) {
            if !self.runs { throw RecordingError(text: "No recording runs.") }
            self.runs = false
            try Data(film.utf8).write(to: url, options: .withoutOverwriting)
        }
    }

    private func answer(_ handler: (((any Error)?) -> Void)?, _ work: @escaping () throws -> Void) {
        nonisolated(unsafe) let (handler, work) = (handler, work)
        queue.async {
            do {
                try work()
                handler?(nil)
            } catch {
                handler?(error)
            }
        }
    }
}

struct RecordingError: LocalizedError {
    let text: String
    var errorDescription: String? { text }
}

private let recorder = RPScreenRecorder()

// ---- Steering ----

@_cdecl("standin_decline_recordings")
public func standin_decline_recordings(_ isDeclined: Bool) { recorder.isDeclined = isDeclined }
