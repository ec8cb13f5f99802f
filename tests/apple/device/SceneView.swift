// Part of the adapter's module in tests: what Objective-C's run time would find by name.
import ARKit

@MainActor @_cdecl("standin_has_scene_view")
public func standin_has_scene_view() -> Bool { (firstWindow!.firstController as! ViewController).sceneView != nil }

/// Another one, or none.
@MainActor @_cdecl("standin_set_scene_view")
public func standin_set_scene_view(_ isThere: Bool) {
    (firstWindow!.firstController as! ViewController).sceneView = isThere ? ARSCNView() : nil
}
