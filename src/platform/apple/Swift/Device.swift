// The device itself: system, console, files, queues and threads.
import ARKit
import Foundation
import VantorelSwift

@_cdecl("vantorel_swift_console_print")
public func vantorel_swift_console_print(_ line: UnsafePointer<CChar>) { print(String(cString: line)) }

@_cdecl("vantorel_swift_is_ios17")
public func vantorel_swift_is_ios17() -> Bool {
    if #available(iOS 17.0, *) { return true } else { return false }
}

@_cdecl("vantorel_swift_supports_scene_reconstruction")
public func vantorel_swift_supports_scene_reconstruction() -> Bool {
    ARWorldTrackingConfiguration.supportsSceneReconstruction(.mesh)
}

// ---- Files ----

@_cdecl("vantorel_swift_documents_directory")
public func vantorel_swift_documents_directory(_ text: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) {
        let files = FileManager.default
        write(try files.url(for: .documentDirectory, in: .userDomainMask, appropriateFor: nil, create: false).path, to: text)
    }
}

@_cdecl("vantorel_swift_temporary_directory")
public func vantorel_swift_temporary_directory(_ text: UnsafeMutableRawPointer) { write(FileManager.default.temporaryDirectory.path, to: text) }

@_cdecl("vantorel_swift_file_exists")
public func vantorel_swift_file_exists(_ path: UnsafePointer<CChar>) -> Bool {
    FileManager.default.fileExists(atPath: String(cString: path))
}

@_cdecl("vantorel_swift_create_directory")
public func vantorel_swift_create_directory(_ path: UnsafePointer<CChar>, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) {
        try FileManager.default.createDirectory(atPath: String(cString: path), withIntermediateDirectories: true)
    }
}

@_cdecl("vantorel_swift_write_file")
public func vantorel_swift_write_file(_ path: UnsafePointer<CChar>, _ bytes: UnsafeRawPointer?, _ length: Int, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) {
        try data(bytes, length).write(to: URL(fileURLWithPath: String(cString: path)))
    }
}

@_cdecl("vantorel_swift_read_file")
public func vantorel_swift_read_file(_ path: UnsafePointer<CChar>, _ bytes: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) { write(try Data(contentsOf: URL(fileURLWithPath: String(cString: path))), to: bytes) }
}

@_cdecl("vantorel_swift_remove_item")
public func vantorel_swift_remove_item(_ path: UnsafePointer<CChar>, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) { try FileManager.default.removeItem(atPath: String(cString: path)) }
}

// ---- Queues and threads ----

@_cdecl("vantorel_swift_main_async")
public func vantorel_swift_main_async(_ work: UnsafeMutableRawPointer) { runOnMain(Context(work)) }

func runOnMain(_ work: Context) { DispatchQueue.main.async { vantorel_core_run(work.raw) } }

@_cdecl("vantorel_swift_main_after")
public func vantorel_swift_main_after(_ nanoseconds: Int64, _ work: UnsafeMutableRawPointer) {
    let work = Context(work)
    DispatchQueue.main.asyncAfter(deadline: .now() + .nanoseconds(Int(nanoseconds))) { vantorel_core_run(work.raw) }
}

@_cdecl("vantorel_swift_start_thread")
public func vantorel_swift_start_thread(_ work: UnsafeMutableRawPointer) {
    let work = Context(work)
    Thread { vantorel_core_run(work.raw) }.start()
}

@_cdecl("vantorel_swift_run_current_run_loop")
public func vantorel_swift_run_current_run_loop() { RunLoop.current.run() }
