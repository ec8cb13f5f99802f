import Phone

/// The device's.
@available(iOS 17.0, *)
public class StructureBuilder {
    public struct ConfigurationOptions: OptionSet, Sendable {
        public let rawValue: UInt
        public init(rawValue: UInt) { self.rawValue = rawValue }
        public static let beautifyObjects = ConfigurationOptions(rawValue: 1)
    }
    public enum BuildError: Error {
        case insufficientInput, invalidInput, exceedSceneSizeLimit, internalError, deviceNotSupported, invalidRoomLocation
    }

    private let options: ConfigurationOptions
    public init(options: ConfigurationOptions) { self.options = options }

    public func capturedStructure(from rooms: [CapturedRoom]) async throws -> CapturedStructure {
        guard options == .beautifyObjects else { throw BuildError.invalidInput }
        return try await withCheckedThrowingContinuation { continuation in
            withTexts(of: rooms) { texts in
                let pending = Pending(continuation)
                device_structure_build(texts.baseAddress, texts.count, callback { result in
                    pending.structure = CapturedStructure(result!.assumingMemoryBound(to: device_structure.self).pointee)
                })
            }
        }
    }
}

/// Resumes with what there is when the device has no use for it any more: after the merge, or in the middle of it when the
/// power goes.
@available(iOS 17.0, *)
private final class Pending {
    var structure: CapturedStructure?
    private let continuation: CheckedContinuation<CapturedStructure, any Error>
    init(_ continuation: CheckedContinuation<CapturedStructure, any Error>) { self.continuation = continuation }
    deinit {
        if let structure { continuation.resume(returning: structure) } else { continuation.resume(throwing: StructureBuilder.BuildError.invalidRoomLocation) }
    }
}

@available(iOS 17.0, *)
public struct CapturedStructure: Codable {
    public typealias Surface = CapturedRoom.Surface
    public typealias Object = CapturedRoom.Object

    public let rooms: [CapturedRoom]
    public let walls, doors, windows, openings, floors: [Surface]
    public let objects: [Object]
    public let sections: [CapturedRoom.Section]
    public let version: Int

    private var standin: DeviceObject!

    enum CodingKeys: String, CodingKey {
        case rooms, walls, doors, windows, openings, floors, objects, sections, version
    }

    public func export(
        to url: URL, metadataURL: URL? = nil, modelProvider: CapturedRoom.ModelProvider? = nil, exportOptions: CapturedRoom.USDExportOptions = .mesh
    ) throws {
        try orThrow(device_structure_export(standin.raw, url.path, metadataURL!.path))
    }
}

@available(iOS 17.0, *)
extension CapturedStructure {
    init?(_ built: device_structure) {
        guard let object = built.structure else { return nil }
        self = try! JSONDecoder().decode(CapturedStructure.self, from: Data(bytes: built.text, count: built.length))
        standin = DeviceObject(object)
    }

    public func encode(to encoder: any Encoder) throws {
        try orThrow(device_check("encodeStructure"))
        var members = encoder.container(keyedBy: CodingKeys.self)
        try members.encode(rooms, forKey: .rooms)
        try members.encode(walls, forKey: .walls)
        try members.encode(doors, forKey: .doors)
        try members.encode(windows, forKey: .windows)
        try members.encode(openings, forKey: .openings)
        try members.encode(floors, forKey: .floors)
        try members.encode(objects, forKey: .objects)
        try members.encode(sections, forKey: .sections)
        try members.encode(version, forKey: .version)
    }
}

/// Calls `work` with the rooms' texts.
private func withTexts(of rooms: [CapturedRoom], _ work: (UnsafeBufferPointer<device_bytes>) -> Void) {
    let texts = rooms.map { $0.text as NSData }
    let bytes = texts.map { device_bytes(bytes: UnsafeMutableRawPointer(mutating: $0.bytes).assumingMemoryBound(to: CChar.self), length: $0.length) }
    withExtendedLifetime(texts) { bytes.withUnsafeBufferPointer(work) }
}

@available(iOS 17.0, *)
extension CapturedRoom {
    public struct ModelProvider { public init() {} }
}
