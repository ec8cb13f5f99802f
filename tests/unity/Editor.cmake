# What of the package needs the Editor, AR Foundation or a sample's scene, on stand-ins of these, and its tests.
file(GLOB standIns CONFIGURE_DEPENDS EditorStandIns/*.cs)
vantorel_compile(UnityEditor "${engine}" ${standIns})
list(APPEND engine ${out}/UnityEditor.dll)
set(defines -define:UNITY_EDITOR -define:UNITY_IOS)
foreach(folder Logic Unity)
  vantorel_assembly(${CMAKE_SOURCE_DIR}/unity/Editor/${folder})
endforeach()
set(defines)
list(REMOVE_ITEM engine ${out}/UnityEditor.dll)
vantorel_assembly(${CMAKE_SOURCE_DIR}/unity/Samples~/ScanARoom)

set(standIns ${CMAKE_CURRENT_SOURCE_DIR}/ARFoundationStandIns)
vantorel_compile(Unity.XR.ARSubsystems "" ${standIns}/XRSessionSubsystem.cs)
vantorel_compile(Unity.XR.ARFoundation "${engine};${out}/Unity.XR.ARSubsystems.dll" ${standIns}/ARSession.cs)
vantorel_compile(Unity.XR.CoreUtils "${engine}" ${standIns}/XROrigin.cs)
set(defines -define:UNITY_EDITOR)
vantorel_assembly(${CMAKE_SOURCE_DIR}/unity/Runtime/ARFoundation)
set(defines)

file(GLOB editorTests CONFIGURE_DEPENDS Editor/*.cs)
set(all Vantorel.Interop Vantorel Vantorel.Simulation Vantorel.Unity Vantorel.ARFoundation Vantorel.EditorLogic Vantorel.Editor
        Vantorel.Samples.ScanARoom Vantorel.Tests UnityEngine UnityEditor Unity.XR.ARFoundation Unity.XR.ARSubsystems
        Unity.XR.CoreUtils nunit.framework)
list(TRANSFORM all REPLACE "(.+)" "${out}/\\1.dll")
vantorel_compile(Vantorel.EditorTests "${all}" ${editorTests})
