// A captured room: its JSON and model are the platform's own, its values cross one element at a time.
import Foundation
import RoomPlan
import VantorelSwift
import simd

func room(_ handle: vantorel_swift_handle) -> CapturedRoom { borrowed(handle, as: Box<CapturedRoom>.self).value }

@_cdecl("vantorel_swift_room_is_empty")
public func vantorel_swift_room_is_empty(_ handle: vantorel_swift_handle) -> Bool {
    let room = room(handle)
    return room.objects.isEmpty && room.doors.isEmpty && room.openings.isEmpty && room.walls.isEmpty && room.windows.isEmpty
}

@_cdecl("vantorel_swift_room_identifier")
public func vantorel_swift_room_identifier(_ handle: vantorel_swift_handle) -> vantorel_swift_uuid {
    vantorel_swift_uuid(bytes: room(handle).identifier.uuid)
}

@_cdecl("vantorel_swift_room_json")
public func vantorel_swift_room_json(_ handle: vantorel_swift_handle, _ text: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) { write(try prettyJson(room(handle)), to: text) }
}

func prettyJson(_ value: some Encodable) throws -> Data {
    let encoder = JSONEncoder()
    encoder.outputFormatting = [.prettyPrinted, .sortedKeys]
    return try encoder.encode(value)
}

@_cdecl("vantorel_swift_room_decode")
public func vantorel_swift_room_decode(
    _ bytes: UnsafeRawPointer?, _ length: Int, _ object: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer
) -> Bool {
    succeeds(orWriteTo: error) {
        vantorel_core_object(object, retained(Box(try JSONDecoder().decode(CapturedRoom.self, from: data(bytes, length)))))
    }
}

@_cdecl("vantorel_swift_room_write_usdz")
public func vantorel_swift_room_write_usdz(_ handle: vantorel_swift_handle, _ path: UnsafePointer<CChar>, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) { try room(handle).export(to: URL(fileURLWithPath: String(cString: path)), exportOptions: .mesh) }
}

@_cdecl("vantorel_swift_room_content")
public func vantorel_swift_room_content(_ handle: vantorel_swift_handle, _ content: UnsafeMutableRawPointer) {
    let room = room(handle)
    let lists = [
        (VANTOREL_SWIFT_WALLS, room.walls), (VANTOREL_SWIFT_DOORS, room.doors),
        (VANTOREL_SWIFT_OPENINGS, room.openings), (VANTOREL_SWIFT_WINDOWS, room.windows),
    ]
    for (list, surfaces) in lists {
        for surface in surfaces { withUnsafePointer(to: element(surface, in: Int32(list))) { vantorel_core_element(content, $0) } }
    }
    for object in room.objects { withUnsafePointer(to: element(object)) { vantorel_core_element(content, $0) } }
}

func element(_ surface: CapturedRoom.Surface, in list: Int32) -> vantorel_swift_element {
    var element = vantorel_swift_element(surface.identifier, surface.transform, surface.dimensions, surface.confidence)
    element.list = list
    (element.category, element.isOpen) = category(surface.category)
    element.completedEdges = surface.completedEdges.reduce(0) { $0 | bit($1) }
    if let curve = surface.curve {
        element.isCurved = true
        (element.startAngle, element.endAngle, element.radius) = (curve.startAngle.value, curve.endAngle.value, curve.radius)
    }
    return element
}

/// In the order of the platform's declaration, which is also the border's.
let objectCategories: [CapturedRoom.Object.Category] = [
    .storage, .refrigerator, .stove, .bed, .sink, .washerDryer, .toilet, .bathtub,
    .oven, .dishwasher, .table, .sofa, .chair, .fireplace, .television, .stairs,
]

func element(_ object: CapturedRoom.Object) -> vantorel_swift_element {
    var element = vantorel_swift_element(object.identifier, object.transform, object.dimensions, object.confidence)
    element.list = Int32(VANTOREL_SWIFT_OBJECTS)
    element.category = Int32((objectCategories.firstIndex(of: object.category) ?? -1) + 1)
    return element
}

extension vantorel_swift_element {
    init(_ identifier: UUID, _ pose: simd_float4x4, _ dimensions: simd_float3, _ confidence: CapturedRoom.Confidence) {
        self.init()
        self.identifier = vantorel_swift_uuid(bytes: identifier.uuid)
        transform = unsafeBitCast(pose, to: vantorel_swift_float4x4.self)
        (width, height, depth) = (dimensions.x, dimensions.y, dimensions.z)
        self.confidence = code(confidence)
    }
}

func code(_ confidence: CapturedRoom.Confidence) -> Int32 {
    switch confidence {
    case .low: return Int32(VANTOREL_SWIFT_LOW)
    case .medium: return Int32(VANTOREL_SWIFT_MEDIUM)
    case .high: return Int32(VANTOREL_SWIFT_HIGH)
    @unknown default: return 0
    }
}

/// A floor is no category of the host's, and stands in no list that crosses.
func category(_ category: CapturedRoom.Surface.Category) -> (Int32, isOpen: Bool) {
    switch category {
    case .wall: return (Int32(VANTOREL_SWIFT_WALL), false)
    case .opening: return (Int32(VANTOREL_SWIFT_OPENING), false)
    case .window: return (Int32(VANTOREL_SWIFT_WINDOW), false)
    case .door(isOpen: let isOpen): return (Int32(VANTOREL_SWIFT_DOOR), isOpen)
    case .floor: return (0, false)
    @unknown default: return (0, false)
    }
}

func bit(_ edge: CapturedRoom.Surface.Edge) -> UInt32 {
    switch edge {
    case .top: return UInt32(VANTOREL_SWIFT_TOP)
    case .right: return UInt32(VANTOREL_SWIFT_RIGHT)
    case .bottom: return UInt32(VANTOREL_SWIFT_BOTTOM)
    case .left: return UInt32(VANTOREL_SWIFT_LEFT)
    @unknown default: return 0
    }
}
