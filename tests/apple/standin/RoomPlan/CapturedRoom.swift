// Apple's declarations with synthesised coding: `{"wall":{}}` is Swift's own text for a case without a value.
import ARKit
import Foundation

public struct CapturedRoom: Codable {
    public private(set) var identifier = UUID()  // no part of the text
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
        case storedFloors = "floors", storedSections = "sections", storedStory = "story", storedVersion = "version"
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
        public let completedEdges: Set<Edge>
        public var curve: Curve? { storedCurve.value }
        private let storedCurve: Nullable<Curve>
        private let storedParent: Nullable<UUID>
        private let storedStory: Int?
        private let storedCorners: [simd_float3]?

        @available(iOS 17.0, *) public var parentIdentifier: UUID? { storedParent.value }
        @available(iOS 17.0, *) public var story: Int { storedStory ?? 0 }
        @available(iOS 17.0, *) public var polygonCorners: [simd_float3] { storedCorners ?? [] }

        enum CodingKeys: String, CodingKey {
            case identifier, category, confidence, transform, dimensions, completedEdges
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

    /// Writes no real model.
    public func export(to url: URL, exportOptions: USDExportOptions = .mesh) throws {
        try Data("stand-in model".utf8).write(to: url)
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
