// A display link at the device's pace. Where there is no Objective-C a selector is the method itself.
import Phone

#if !canImport(ObjectiveC)
public struct Selector {
    let call: (Any, Any) -> Void
    public init<Target, Sender>(_ method: @escaping (Target) -> (Sender) -> Void) {
        call = { method($0 as! Target)($1 as! Sender) }
    }
}
#endif

public struct CAFrameRateRange {
    public var minimum, maximum: Float
    public var preferred: Float?
    public init(minimum: Float, maximum: Float, preferred: Float? = nil) {
        (self.minimum, self.maximum, self.preferred) = (minimum, maximum, preferred)
    }
}

public typealias CFTimeInterval = Double

public final class CADisplayLink: NSObject, @unchecked Sendable {
    private var link: DeviceObject!

    /// The device holds the action, and so the target, until the link is invalidated.
    public init(target: Any, selector: Selector) {
        super.init()
        let fire = { [weak self] in self.map { selector.call(target, $0) } }
        link = DeviceObject(device_link_create(callback { _ in fire() }))
    }
    public func add(to runLoop: RunLoop, forMode mode: RunLoop.Mode) {
        device_link_add(link.raw, mode == .common)
    }
    public func invalidate() {
        device_link_invalidate(link.raw)
    }
    public var preferredFrameRateRange = CAFrameRateRange(minimum: 0, maximum: 0) {
        didSet {
            let range = preferredFrameRateRange
            device_link_set_rate(link.raw, range.minimum, range.maximum, range.preferred ?? 0)
        }
    }
    public var timestamp: CFTimeInterval { device_link_timestamp(link.raw) }
    public var targetTimestamp: CFTimeInterval { device_link_target_timestamp(link.raw) }
}
