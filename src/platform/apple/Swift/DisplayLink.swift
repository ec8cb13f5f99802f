import Foundation
import QuartzCore
import VantorelSwift

/// The link retains its target until it is invalidated, and the target the context.
final class LinkTarget: NSObject {
    let context: Context
    init(_ context: Context) { self.context = context }

    #if canImport(ObjectiveC)
    @objc
    #endif
    func fire(_ link: CADisplayLink) { vantorel_core_link_fired(context.raw, retained(link)) }

    #if canImport(ObjectiveC)
    static let selector = #selector(LinkTarget.fire)
    #else
    static let selector = Selector(LinkTarget.fire)
    #endif
}

@_cdecl("vantorel_swift_link_create")
public func vantorel_swift_link_create(_ context: UnsafeMutableRawPointer) -> vantorel_swift_handle {
    retained(CADisplayLink(target: LinkTarget(Context(context)), selector: LinkTarget.selector))
}

@_cdecl("vantorel_swift_link_add_to_current_run_loop")
public func vantorel_swift_link_add_to_current_run_loop(_ link: vantorel_swift_handle, _ commonModes: Bool) {
    borrowed(link, as: CADisplayLink.self).add(to: .current, forMode: commonModes ? .common : .default)
}

@_cdecl("vantorel_swift_link_set_frame_rate")
public func vantorel_swift_link_set_frame_rate(_ link: vantorel_swift_handle, _ minimum: Float, _ maximum: Float, _ preferred: Float) {
    borrowed(link, as: CADisplayLink.self).preferredFrameRateRange =
        CAFrameRateRange(minimum: minimum, maximum: maximum, preferred: preferred)
}

@_cdecl("vantorel_swift_link_invalidate")
public func vantorel_swift_link_invalidate(_ link: vantorel_swift_handle) { borrowed(link, as: CADisplayLink.self).invalidate() }

@_cdecl("vantorel_swift_link_timestamp")
public func vantorel_swift_link_timestamp(_ link: vantorel_swift_handle) -> Double { borrowed(link, as: CADisplayLink.self).timestamp }

@_cdecl("vantorel_swift_link_target_timestamp")
public func vantorel_swift_link_target_timestamp(_ link: vantorel_swift_handle) -> Double {
    borrowed(link, as: CADisplayLink.self).targetTimestamp
}
