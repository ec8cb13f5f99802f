// Rooms merged into a structure. The core asks for none of this before iOS 17.
import Foundation
import RoomPlan
import VantorelSwift

@available(iOS 17.0, *)
@_cdecl("vantorel_swift_structure_builder_create")
public func vantorel_swift_structure_builder_create() -> vantorel_swift_handle { retained(StructureBuilder(options: [.beautifyObjects])) }

@available(iOS 17.0, *)
@_cdecl("vantorel_swift_structure_builder_merge")
public func vantorel_swift_structure_builder_merge(
    _ builder: vantorel_swift_handle, _ rooms: UnsafePointer<vantorel_swift_handle>?, _ count: Int, _ completion: UnsafeMutableRawPointer
) {
    let builder = borrowed(builder, as: StructureBuilder.self)
    let rooms = UnsafeBufferPointer(start: rooms, count: count).map(room)
    let context = Context(completion)
    Task.detached {
        let structure = try? await builder.capturedStructure(from: rooms)
        vantorel_core_complete(context.raw, structure.map { retained(Box($0)) })
    }
}

@available(iOS 17.0, *)
func structure(_ handle: vantorel_swift_handle) -> CapturedStructure { borrowed(handle, as: Box<CapturedStructure>.self).value }

@available(iOS 17.0, *)
@_cdecl("vantorel_swift_structure_json")
public func vantorel_swift_structure_json(_ handle: vantorel_swift_handle, _ text: UnsafeMutableRawPointer, _ error: UnsafeMutableRawPointer) -> Bool {
    succeeds(orWriteTo: error) { write(try prettyJson(structure(handle)), to: text) }
}

@available(iOS 17.0, *)
@_cdecl("vantorel_swift_structure_write_usdz")
public func vantorel_swift_structure_write_usdz(
    _ handle: vantorel_swift_handle, _ path: UnsafePointer<CChar>, _ metadataPath: UnsafePointer<CChar>, _ error: UnsafeMutableRawPointer
) -> Bool {
    succeeds(orWriteTo: error) {
        try structure(handle).export(
            to: URL(fileURLWithPath: String(cString: path)), metadataURL: URL(fileURLWithPath: String(cString: metadataPath)),
            modelProvider: nil, exportOptions: .mesh)
    }
}
