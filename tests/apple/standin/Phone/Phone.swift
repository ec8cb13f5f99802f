// What every stand-in needs to be a thin shell over the simulated device.
@_exported import Foundation
@_exported import SimulatedDevice

/// An object of the device.
public final class DeviceObject: @unchecked Sendable {
    public let raw: UnsafeMutableRawPointer
    public init(_ raw: UnsafeMutableRawPointer) { self.raw = raw }
    deinit { device_drop(raw) }
}

public struct DeviceError: LocalizedError {
    public let errorDescription: String?
    /// A C string.
    public init(_ text: UnsafeRawPointer) { errorDescription = String(cString: text.assumingMemoryBound(to: CChar.self)) }
}

/// Throws what the device says, if it says anything.
public func orThrow(_ text: UnsafeMutablePointer<CChar>?) throws {
    guard let text else { return }
    defer { free(text) }
    throw DeviceError(text)
}

/// Whether the device lets this call fail.
public func fails(_ call: String) -> Bool { (try? orThrow(device_check(call))) == nil }

/// The bytes, which are freed; nothing where there are none.
public func data(_ from: device_bytes) -> Data? {
    from.bytes.map { Data(bytesNoCopy: $0, count: from.length, deallocator: .free) }
}

private final class Closure {
    let call: (UnsafeRawPointer?) -> Void
    init(_ call: @escaping (UnsafeRawPointer?) -> Void) { self.call = call }
}

public func callback(_ call: @escaping (UnsafeRawPointer?) -> Void) -> device_callback {
    device_callback(
        context: Unmanaged.passRetained(Closure(call)).toOpaque(),
        call: { Unmanaged<Closure>.fromOpaque($0!).takeUnretainedValue().call($1) },
        release: { Unmanaged<Closure>.fromOpaque($0!).release() })
}

public func mainAsync(_ work: @escaping () -> Void) { device_main_async(callback { _ in work() }) }
