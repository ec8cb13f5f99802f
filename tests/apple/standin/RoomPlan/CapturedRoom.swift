// Apple's declarations with synthesised coding: `{"wall":{}}` is Swift's own text for a case without a value.
import ARKit
import Phone

public struct CapturedRoom: Codable {
    /// No part of the texts that iPhones write. A room that was decoded has the one that the device gives it.
    public var identifier: UUID { told ?? storedIdentifier ?? identifierOfDecoded }
    private var told: UUID?
    private let storedIdentifier: UUID?
    public let walls, doors, windows, openings: [Surface]
    public let objects: [Object]
    let coreModel: String?
    let referenceOriginTransform: simd_float4x4?
    private let storedFloors: [Surface]?
    private let storedSections: [Section]?
    private let storedStory: Int?
    private let storedVersion: Int?

    @available(iOS 17.0, *) public var floors: [Surface] { storedFloors ?? [] }
    @available(iOS 17.0, *) public var sections: [Section] { storedSections ?? [] }
    @available(iOS 17.0, *) public var story: Int { storedStory ?? 0 }
    @available(iOS 17.0, *) public var version: Int { storedVersion ?? 1 }

    enum CodingKeys: String, CodingKey {
        case walls, doors, windows, openings, objects, coreModel, referenceOriginTransform
        case storedFloors = "floors", storedSections = "sections", storedStory = "story", storedVersion = "version", storedIdentifier = "identifier"
    }

    public enum Confidence: Codable { case high, medium, low }

    public struct Surface: Codable {
        public enum Category: Codable, Hashable {
            case wall, opening, window
            case door(isOpen: Bool)
            @available(iOS 17.0, *) case floor
        }
        public enum Edge: Codable, CaseIterable { case top, right, bottom, left }
        public struct Curve: Codable {
            public let startAngle, endAngle: Measurement<UnitAngle>
            public let radius: Float
            private let storedCenter: simd_float2?
            @available(iOS 17.0, *) public var center: simd_float2 { storedCenter ?? .zero }

            enum CodingKeys: String, CodingKey {
                case startAngle, endAngle, radius, storedCenter = "center"
            }
        }

        public let identifier: UUID
        public let category: Category
        public let confidence: Confidence
        public let transform: simd_float4x4
        public let dimensions: simd_float3
        public var completedEdges: Set<Edge> { Set(storedEdges ?? []) }
        private let storedEdges: [Edge]?  // a set's own order is another in every process
        public var curve: Curve? { storedCurve?.value }
        private let storedCurve: Nullable<Curve>?
        private let storedParent: Nullable<UUID>?
        private let storedStory: Int?
        private let storedCorners: [simd_float3]?

        @available(iOS 17.0, *) public var parentIdentifier: UUID? { storedParent?.value }
        @available(iOS 17.0, *) public var story: Int { storedStory ?? 0 }
        @available(iOS 17.0, *) public var polygonCorners: [simd_float3] { storedCorners ?? [] }

        enum CodingKeys: String, CodingKey {
            case identifier, category, confidence, transform, dimensions, storedEdges = "completedEdges"
            case storedCurve = "curve", storedParent = "parentIdentifier", storedStory = "story", storedCorners = "polygonCorners"
        }
    }

    public struct Object: Codable {
        public enum Category: Codable, CaseIterable {
            case storage, refrigerator, stove, bed, sink, washerDryer, toilet, bathtub
            case oven, dishwasher, table, sofa, chair, fireplace, television, stairs
        }

        public let identifier: UUID
        public let category: Category
        public let confidence: Confidence
        public let transform: simd_float4x4
        public let dimensions: simd_float3
        private let storedParent: Nullable<UUID>?
        private let storedStory: Int?
        private let storedAttributes: [String: String]?

        @available(iOS 17.0, *) public var parentIdentifier: UUID? { storedParent?.value }
        @available(iOS 17.0, *) public var story: Int { storedStory ?? 0 }

        enum CodingKeys: String, CodingKey {
            case identifier, category, confidence, transform, dimensions
            case storedParent = "parentIdentifier", storedStory = "story", storedAttributes = "attributes"
        }
    }

    @available(iOS 17.0, *) public struct Section: Codable {
        public enum Label: String, Codable { case livingRoom, bedroom, bathroom, kitchen, diningRoom, unidentified }
        public let label: Label
        public let center: simd_float3
        public let story: Int
    }

    public struct USDExportOptions: OptionSet, Sendable {
        public let rawValue: Int
        public init(rawValue: Int) { self.rawValue = rawValue }
        public static let parametric = USDExportOptions(rawValue: 1)
        public static let mesh = USDExportOptions(rawValue: 2)
    }

    public func export(to url: URL, exportOptions: USDExportOptions = .mesh) throws {
        precondition(exportOptions == .mesh)
        try orThrow(text.withUnsafeBytes { device_room_export($0.baseAddress, $0.count, url.path) })
    }
}

// ---- The way to the device and back ----

extension CapturedRoom {
    init(_ event: device_session_event) {
        self = try! JSONDecoder().decode(CapturedRoom.self, from: Data(bytes: event.text, count: event.length))
        told = UnsafeRawPointer(event.identifier).map { UUID(uuid: $0.loadUnaligned(as: uuid_t.self)) }
    }

    /// Foundation's, of everything that the room has.
    var text: Data {
        struct Members: Encodable {
            let room: CapturedRoom
            func encode(to encoder: any Encoder) throws { try room.encodeMembers(to: encoder) }
        }
        return try! JSONEncoder().encode(Members(room: self))
    }

    private var identifierOfDecoded: UUID {
        var bytes = UUID().uuid
        text.withUnsafeBytes { text in withUnsafeMutableBytes(of: &bytes) { device_room_identifier(text.baseAddress, text.count, $0.baseAddress) } }
        return UUID(uuid: bytes)
    }

    /// A room of its own may fail; one within a structure is the structure's affair.
    public func encode(to encoder: any Encoder) throws {
        if encoder.codingPath.isEmpty { try orThrow(device_check("encodeRoom")) }
        try encodeMembers(to: encoder)
    }

    private func encodeMembers(to encoder: any Encoder) throws {
        var members = encoder.container(keyedBy: CodingKeys.self)
        try members.encode(walls, forKey: .walls)
        try members.encode(doors, forKey: .doors)
        try members.encode(windows, forKey: .windows)
        try members.encode(openings, forKey: .openings)
        try members.encode(objects, forKey: .objects)
        try members.encodeIfPresent(coreModel, forKey: .coreModel)
        try members.encodeIfPresent(referenceOriginTransform, forKey: .referenceOriginTransform)
        try members.encodeIfPresent(storedFloors, forKey: .storedFloors)
        try members.encodeIfPresent(storedSections, forKey: .storedSections)
        try members.encodeIfPresent(storedStory, forKey: .storedStory)
        try members.encodeIfPresent(storedVersion, forKey: .storedVersion)
        try members.encodeIfPresent(storedIdentifier, forKey: .storedIdentifier)
    }
}

/// A value that is written as null when it is missing. The overload lets a key be absent, which is not null.
struct Nullable<Value: Codable>: Codable {
    let value: Value?
    init(from decoder: any Decoder) throws {
        let container = try decoder.singleValueContainer()
        value = container.decodeNil() ? nil : try container.decode(Value.self)
    }
    func encode(to encoder: any Encoder) throws {
        var container = encoder.singleValueContainer()
        if let value { try container.encode(value) } else { try container.encodeNil() }
    }
}

extension KeyedDecodingContainer {
    func decodeIfPresent<Value>(_ type: Nullable<Value>.Type, forKey key: Key) throws -> Nullable<Value>? {
        contains(key) ? try decode(type, forKey: key) : nil
    }
}

public struct CapturedRoomData: Codable {}
