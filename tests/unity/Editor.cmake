# What of the package needs the Editor, on stand-ins of it, and its tests.
file(GLOB standIns CONFIGURE_DEPENDS EditorStandIns/*.cs)
vantorel_compile(UnityEditor "${engine}" ${standIns})
list(APPEND engine ${out}/UnityEditor.dll)
set(defines -define:UNITY_EDITOR -define:UNITY_IOS)
foreach(folder Logic Unity)
  vantorel_assembly(${CMAKE_SOURCE_DIR}/unity/Editor/${folder})
endforeach()
set(defines)

file(GLOB editorTests CONFIGURE_DEPENDS Editor/*.cs)
set(all Vantorel.Interop Vantorel Vantorel.Simulation Vantorel.Unity Vantorel.EditorLogic Vantorel.Editor Vantorel.Tests UnityEngine
        UnityEditor nunit.framework)
list(TRANSFORM all REPLACE "(.+)" "${out}/\\1.dll")
vantorel_compile(Vantorel.EditorTests "${all}" ${editorTests})
