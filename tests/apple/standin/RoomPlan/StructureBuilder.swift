import Foundation

/// Puts the rooms side by side.
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
        if standinRefusesMerges { throw BuildError.invalidRoomLocation }
        return CapturedStructure(rooms)
    }
}

@available(iOS 17.0, *)
public struct CapturedStructure: Codable {
    public typealias Surface = CapturedRoom.Surface
    public typealias Object = CapturedRoom.Object

    public private(set) var identifier = UUID()  // no part of the text
    public let rooms: [CapturedRoom]
    public let walls, doors, windows, openings, floors: [Surface]
    public let objects: [Object]
    public let sections: [CapturedRoom.Section]
    public let version: Int

    enum CodingKeys: String, CodingKey {
        case rooms, walls, doors, windows, openings, floors, objects, sections, version
    }

    init(_ rooms: [CapturedRoom]) {
        self.rooms = rooms
        (walls, doors, windows) = (rooms.flatMap(\.walls), rooms.flatMap(\.doors), rooms.flatMap(\.windows))
        (openings, floors) = (rooms.flatMap(\.openings), rooms.flatMap(\.floors))
        (objects, sections) = (rooms.flatMap(\.objects), rooms.flatMap(\.sections))
        version = 2
    }

    /// Writes no real model.
    public func export(
        to url: URL, metadataURL: URL? = nil, modelProvider: CapturedRoom.ModelProvider? = nil, exportOptions: CapturedRoom.USDExportOptions = .mesh
    ) throws {
        try Data("stand-in structure".utf8).write(to: url)
        if let metadataURL { try Data("stand-in metadata".utf8).write(to: metadataURL) }
    }
}

@available(iOS 17.0, *)
extension CapturedRoom {
    public struct ModelProvider { public init() {} }
}

// ---- Steering ----

nonisolated(unsafe) private var standinRefusesMerges = false  // set between merges

/// Whether rooms are found too far apart from now on.
@_cdecl("standin_refuse_merges")
public func standin_refuse_merges(_ isRefused: Bool) { standinRefusesMerges = isRefused }
