// Part of the adapter's module here, where these names go before Foundation's: its queue, threads and run loop are the
// simulated device's. The tests' other compilations of the adapter use Foundation's.
import Phone

enum DispatchQueue {
    static let main = MainQueue()
}

struct MainQueue {
    func async(execute work: @escaping @Sendable () -> Void) { mainAsync(work) }
    func asyncAfter(deadline: DispatchTime, execute work: @escaping @Sendable () -> Void) {
        device_main_after(Int64(deadline.nanoseconds), callback { _ in work() })
    }
}

/// From now on.
struct DispatchTime {
    enum Interval { case nanoseconds(Int) }
    var nanoseconds = 0
    static func now() -> DispatchTime { DispatchTime() }
    static func + (time: DispatchTime, interval: Interval) -> DispatchTime {
        switch interval { case .nanoseconds(let more): return DispatchTime(nanoseconds: time.nanoseconds + more) }
    }
}

struct Thread {
    let entry: @Sendable () -> Void
    init(block entry: @escaping @Sendable () -> Void) { self.entry = entry }
    func start() { device_start_thread(callback { _ in entry() }) }
    static var isMainThread: Bool { device_is_main_thread() }
}

struct RunLoop {
    static var current: RunLoop { RunLoop() }
    func run() { device_run_loop() }
}
