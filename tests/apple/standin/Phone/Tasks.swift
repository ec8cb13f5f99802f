// Tasks of no actor run at once on the thread that makes or resumes them, so that two runs are alike. Swift's run time has
// a hook for this.
private typealias Original = @convention(thin) (UnownedJob) -> Void
private typealias Hook = @convention(thin) (UnownedJob, Original) -> Void

@_silgen_name("swift_job_run")
private func run(_ job: UnownedJob, _ executor: UnownedSerialExecutor)

@_cdecl("standin_run_tasks_in_place")
public func standin_run_tasks_in_place() {
    let hook = dlsym(dlopen(nil, RTLD_LAZY), "swift_task_enqueueGlobal_hook")!.assumingMemoryBound(to: Hook.self)
    hook.pointee = { job, _ in run(job, unsafeBitCast((0, 0), to: UnownedSerialExecutor.self)) }
}
