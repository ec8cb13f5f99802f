// A display link on a timer. Where there is no Objective-C a selector is the method itself.
import Foundation

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

public final class CADisplayLink: NSObject, @unchecked Sendable {
    private let lock = NSLock()
    private var action: (() -> Void)?
    private var timer: Timer?
    private let start = Date()

    public init(target: Any, selector: Selector) {
        super.init()
        action = { [unowned self] in selector.call(target, self) }  // retains the target, as Apple's does
    }
    public func add(to runLoop: RunLoop, forMode mode: RunLoop.Mode) {
        let timer = Timer(timeInterval: 1.0 / 60, repeats: true) { _ in self.lock.withLock { self.action }?() }
        lock.withLock { self.timer = timer }
        runLoop.add(timer, forMode: mode)
    }
    public func invalidate() {
        let (timer, action) = lock.withLock { (self.timer, self.action) }
        lock.withLock { (self.timer, self.action) = (nil, nil) }
        timer?.invalidate()
        withExtendedLifetime(action) {}  // released here, outside the lock
    }
    public var preferredFrameRateRange = CAFrameRateRange(minimum: 0, maximum: 0)
    public var timestamp: CFTimeInterval { Date().timeIntervalSince(start) }
    public var targetTimestamp: CFTimeInterval { timestamp + 1.0 / 60 }
}

public typealias CFTimeInterval = Double
