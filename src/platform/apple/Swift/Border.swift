// What every crossing needs: who owns what, texts, errors.
import Foundation
import VantorelSwift

/// An object of C++ that belongs to Swift from here on.
final class Context: @unchecked Sendable {
    let raw: UnsafeMutableRawPointer
    init(_ raw: UnsafeMutableRawPointer) { self.raw = raw }
    deinit { vantorel_core_drop(raw) }
}

/// Lets a struct cross as an object.
final class Box<Value> {
    let value: Value
    init(_ value: Value) { self.value = value }
}

func retained(_ object: AnyObject) -> vantorel_swift_handle { Unmanaged.passRetained(object).toOpaque() }

/// A handle of the wrong kind stops here, with both types' names.
func borrowed<Object: AnyObject>(_ handle: vantorel_swift_handle, as type: Object.Type = Object.self) -> Object {
    Unmanaged<AnyObject>.fromOpaque(handle).takeUnretainedValue() as! Object
}

func write(_ text: String, to target: UnsafeMutableRawPointer) {
    var text = text
    text.withUTF8 { write(UnsafeRawBufferPointer($0), to: target) }
}

func write(_ bytes: Data, to target: UnsafeMutableRawPointer) { bytes.withUnsafeBytes { write($0, to: target) } }

func write(_ bytes: UnsafeRawBufferPointer, to target: UnsafeMutableRawPointer) {
    bytes.withMemoryRebound(to: CChar.self) { characters in
        // What is empty may have no address; any other will do for no bytes.
        guard let start = characters.baseAddress else { return vantorel_core_text(target, "", 0) }
        vantorel_core_text(target, start, characters.count)
    }
}

func data(_ bytes: UnsafeRawPointer?, _ length: Int) -> Data { Data(UnsafeRawBufferPointer(start: bytes, count: length)) }

/// Whether `work` succeeded; if not, its error's description is in `target`.
func succeeds(orWriteTo target: UnsafeMutableRawPointer, _ work: () throws -> Void) -> Bool {
    do {
        try work()
        return true
    } catch {
        write(error.localizedDescription, to: target)
        return false
    }
}

@_cdecl("vantorel_swift_release")
public func vantorel_swift_release(_ object: vantorel_swift_handle) {
    Unmanaged<AnyObject>.fromOpaque(object).release()
}

@_cdecl("vantorel_swift_retain")
public func vantorel_swift_retain(_ object: UnsafeMutableRawPointer) -> vantorel_swift_handle {
    retained(Unmanaged<AnyObject>.fromOpaque(object).takeUnretainedValue())
}
