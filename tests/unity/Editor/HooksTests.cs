using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Runtime.CompilerServices;
using NUnit.Framework;
using UnityEditor;
using UnityEditor.PackageManager;
using UnityEngine;
using Vantorel.Editor;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    /// <summary>What Unity calls: the events of Play, its frames, the inspector.</summary>
    [TestFixture]
    public class HooksTests : DeviceTest
    {
        private readonly RoomScannerEditor inspector = new RoomScannerEditor();
        private RoomScanner scanner;

        [SetUp]
        public void Play()
        {
            Device.Dispose();
            Application.persistentDataPath = Folder;
            PackageInfo.Folder = Folder;
            Application.dataPath = Path.Combine(TestFiles.Root, "Assets");
            var settings = VantorelSettings.instance.device;
            settings.rooms = new[] { "samples/flat.json" };
            settings.secondsPerRoom = 2;
            settings.faults = new DeviceFault[0];
            RuntimeHelpers.RunClassConstructor(typeof(PlayHooks).TypeHandle);
            EditorSettings.enterPlayModeOptionsEnabled = true;
            EditorSettings.enterPlayModeOptions = EnterPlayModeOptions.DisableDomainReload;
            EditorApplication.Change(PlayModeStateChange.ExitingEditMode);
            Application.isPlaying = true;
            scanner = new GameObject().AddComponent<RoomScanner>();
        }

        [TearDown]
        public void Stop()
        {
            EditorApplication.Change(PlayModeStateChange.ExitingPlayMode);
            scanner.Send("OnDestroy");
            Application.isPlaying = false;
            EditorApplication.Change(PlayModeStateChange.EnteredEditMode);
            Assert.IsNull(PlayHooks.Device);
            Assert.AreEqual(0, SimulatedDevice.Time);
        }

        [Test]
        public void FramesMoveTheDeviceAndTheInspectorShowsTheScan()
        {
            scanner.Session.StartAsync();
            Frames(12);
            EditorApplication.update();  // the Editor's own, between frames
            Assert.AreEqual(1.2, SimulatedDevice.Time, 1e-6);
            CollectionAssert.Contains(Inspect(), "State: scanning");
            CollectionAssert.Contains(EditorGUILayout.Texts, "Updates: " + scanner.Session.UpdateCount);
            Assert.AreEqual(FloorPlan.Of(scanner.Session.Room).Count, Handles.Lines.Count);
            Assert.That(Handles.Lines.SelectMany(line => line).Select(end => end.x), Is.All.InRange(10, 310));

            PlayHooks.Device.Advance(0.1);
            scanner.Send("Update");
            Frames(2);
            Assert.That(Inspect(), Has.Some.StartsWith("Last instruction: ").And.Some.Not.EqualTo("Last instruction: "));
        }

        [Test]
        public void ACrashedDeviceIsShownInTheInspector()
        {
            EditorApplication.Change(PlayModeStateChange.EnteredEditMode);
            VantorelSettings.instance.device.faults = new[] { new DeviceFault { call = "loadView" } };
            EditorApplication.Change(PlayModeStateChange.ExitingEditMode);
            scanner = new GameObject().AddComponent<RoomScanner>();
            Debug.Lines.Clear();
            scanner.Session.StartAsync();
            Frames(3);
            Assert.That(Inspect(), Has.Some.Contains("the device has crashed"));
            Assert.AreEqual(1, Debug.Lines.Count(line => line.StartsWith("Error: ")));
        }

        [Test]
        public void AReloadLeavesTheDeviceToTheNextScripts()
        {
            EditorApplication.Change(PlayModeStateChange.EnteredEditMode);
            EditorSettings.enterPlayModeOptionsEnabled = false;
            EditorApplication.Change(PlayModeStateChange.ExitingEditMode);
            Assert.IsNull(PlayHooks.Device);
            EditorSettings.enterPlayModeOptionsEnabled = true;
            EditorApplication.Change(PlayModeStateChange.ExitingEditMode);
            Assert.IsNotNull(PlayHooks.Device);
            AssemblyReloadEvents.Reload();
            Assert.IsNull(PlayHooks.Device);
        }

        private void Frames(int count)
        {
            for (int i = 0; i < count; ++i)
            {
                ++Time.frameCount;
                Time.unscaledDeltaTime = 0.1f;
                EditorApplication.update();
                scanner.Send("Update");
            }
        }

        private List<string> Inspect()
        {
            EditorGUILayout.Texts.Clear();
            Handles.Lines.Clear();
            inspector.target = scanner;
            inspector.OnInspectorGUI();
            return EditorGUILayout.Texts;
        }
    }
}
