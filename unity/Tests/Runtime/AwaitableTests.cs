using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Threading.Tasks;
using NUnit.Framework;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    /// <summary>Signals, time-outs and checks of the awaitables, as Documentation~/awaitables.md has them.</summary>
    [TestFixture]
    public class AwaitableTests : DeviceTest
    {
        [Test]
        public void AStartIsRefusedWhereItCannotWork()
        {
            Device.SetOption("lidar", "off");
            Fails<NotSupportedException>(Session.StartAsync());
            Device.SetOption("lidar", "on");
            Start();
            Fails<InvalidOperationException>(Session.StartAsync());
            Fails<InvalidOperationException>(Session.ResumeFromWorldMapAsync("map"));
            Assert.Throws<InvalidOperationException>(Session.Prepare);
        }

        [TestCase("<key>NSCameraUsageDescription</key>", true)]
        [TestCase("bplist00\u0001NSCameraUsageDescription\u0002", true)]
        [TestCase("<key>NSMicrophoneUsageDescription</key>", false)]
        public void AStartLooksForTheCameraUsageText(string plist, bool starts)
        {
            string path = Path.Combine(Folder, "Info.plist");
            File.WriteAllText(path, plist);
            Session.Dispose();
            var settings = Device.NewSettings();
            settings.InfoPlistPath = path;
            Session = new ScanSession(settings);
            if (starts) Start();
            else Fails<InvalidOperationException>(Session.StartAsync());
        }

        [Test]
        public void AStartWithoutAWindowTimesOut()
        {
            Device.SetOption("window", "none");
            double before = SimulatedDevice.Time;
            Fails<TimeoutException>(Session.StartAsync());
            Assert.AreEqual(10, SimulatedDevice.Time - before, 0.2);
            Device.SetOption("window", "full");
            Start();
        }

        [Test]
        public void OneStartOrStopIsUnderWay()
        {
            var start = Session.StartAsync();
            Fails<InvalidOperationException>(Session.StartAsync());
            Run(start);
            Assert.IsTrue(Session.IsScanning);
            var stop = Session.StopAsync();
            Fails<InvalidOperationException>(Session.ShutDownAsync());
            Run(stop);
            Fails<InvalidOperationException>(Session.StopAsync());
        }

        [Test]
        public void AShutDownEndsAScanAndTheSessionStartsAgain()
        {
            Start();
            Run(Session.ShutDownAsync());
            Assert.IsFalse(Session.IsScanning || Session.IsInitialized);
            Run(Session.ShutDownAsync());
            Start();
            Assert.IsTrue(Session.IsScanning);
        }

        [Test]
        public void ASaveIsRefusedWhereItWouldBeSilent()
        {
            Scan();
            Run(Session.SaveAsync("scans", "one"));
            Fails<IOException>(Session.SaveAsync("scans", "one"));
            Fails<ArgumentException>(Session.SaveAsync("", "one"));
            Device.Fail("exportRoom");
            Fails<IOException>(Session.SaveAsync("scans", "two"));
            Directory.Move(Folder, Folder + "-away");
            Fails<DirectoryNotFoundException>(Session.SaveAsync("scans", "three"));
            Directory.Move(Folder + "-away", Folder);
        }

        [Test]
        public void AFileIsLookedAtOnceATick()
        {
            Device.ScanRoom(TestFiles.Flat, seconds: 10);
            Start();
            Device.Advance(5);  // updates and coaching words wait
            var save = Session.SaveAsync("scans", "one");
            Session.Tick();
            Assert.IsFalse(save.IsCompleted);
            Session.Tick();
            Assert.IsTrue(save.IsCompleted);
        }

        [Test]
        public void ASaveOfSeveralRoomsIsDoneWithItsLastFile()
        {
            Scan();
            Device.ScanRoom(TestFiles.Sample("house.json"), seconds: 1);
            Session.BeginNextRoom();
            Device.Run(Session, 1.5);
            Session.CloseRoom();
            Session.RunNextRoom();
            var save = Session.SaveAsync("home", "merged");
            Device.Run(Session, 0.5);
            Assert.IsFalse(save.IsCompleted);
            Fails<InvalidOperationException>(Session.StopAsync());
            Fails<InvalidOperationException>(Session.SaveAsync("home", "again"));
            var saved = Run(save);
            Assert.IsTrue(File.Exists(saved.MetadataPath));
            Assert.AreEqual(2, CapturedStructure.Load(saved.JsonPath).Rooms.Count);
            Run(Session.StopAsync());
        }

        [Test]
        public void RoomTextsAreMergedWheneverTheAppLikes()
        {
            Scan();
            var saved = Run(Session.MergeAsync(new[] { Session.RoomText, Session.RoomText }, "home", "merged"));
            var structure = CapturedStructure.Load(saved.JsonPath);
            Assert.AreEqual(2, structure.Rooms.Count);
            Assert.AreEqual(Session.Room.Walls.Count, structure.Walls.Count);
            Fails<TimeoutException>(Session.MergeAsync(new[] { "{\"version\":2}" }, "home", "bare"));
            Fails<ArgumentException>(Session.MergeAsync(new[] { Session.RoomText, "no room" }, "home", "other"));
            Fails<ArgumentException>(Session.MergeAsync(new string[0], "home", "none"));
            Fails<ArgumentException>(Session.MergeAsync(new[] { Session.RoomText, null }, "home", "half"));
            Device.SetOption("ios", "16.0");
            Fails<NotSupportedException>(Session.MergeAsync(new[] { Session.RoomText }, "home", "old"));
        }

        [Test]
        public void AScanResumesInItsWorldMap()
        {
            Scan();
            string space = Device.State("arSession.space");
            string map = Run(Session.StopWithWorldMapAsync(Folder + "/maps"));
            Assert.AreEqual(Folder + "/maps/WorldMap/scan", map);
            Assert.IsFalse(Session.IsScanning);
            Run(Session.ResumeFromWorldMapAsync(map));
            Assert.IsTrue(Session.IsScanning);
            Assert.AreEqual(space, Device.State("arSession.space"));
        }

        [Test]
        public void WorldMapsThatCannotBeAreTold()
        {
            Fails<FileNotFoundException>(Session.ResumeFromWorldMapAsync(Folder + "/none"));
            Device.SetOption("tracking", "limited");
            Scan();
            Device.SetOption("map", "none");
            Fails<TimeoutException>(Session.StopWithWorldMapAsync(Folder));
            Assert.IsTrue(Session.IsScanning);
            File.WriteAllText(Folder + "/file", "");
            Fails<IOException>(Session.StopWithWorldMapAsync(Folder + "/file"));
            Device.SetOption("map", "present");
            string map = Run(Session.StopWithWorldMapAsync(Folder));
            double before = SimulatedDevice.Time;
            Fails<TimeoutException>(Session.ResumeFromWorldMapAsync(map));
            Assert.AreEqual(60, SimulatedDevice.Time - before, 0.5);
        }

        [Test]
        public void TheDeviceDoesNotWaitForEver()
        {
            var never = new TaskCompletionSource<bool>().Task;
            Assert.Throws<TimeoutException>(() => Device.Run(Session, never, step: 100));
        }

        [Test]
        public void MediaAnswersWithPaths()
        {
            Start();
            var seen = new List<DeviceObservation>();
            SimulatedDevice.SetObserver(seen.Add);
            Session.Media.PreviewsScreenshots = true;
            string first = Session.Media.TakeScreenshot();
            Assert.IsTrue(File.Exists(first));
            Session.Media.Share(first);
            Session.Media.Share(Folder + "/none");
            CollectionAssert.AreEqual(new[] { "present screenshot", "present share", "console " },
                                      seen.Select(one => one.Kind + " " + one.Name));
            Assert.AreEqual(first, seen[1].Value);
            Assert.AreNotEqual(first, Session.Media.TakeScreenshot());
            Device.Fail("screenshot");
            Assert.Throws<IOException>(() => Session.Media.TakeScreenshot());
            Session.Media.StartRecording();
            Device.Run(Session, 0.5);
            string film = Run(Session.Media.StopRecordingAsync());
            Assert.IsTrue(File.Exists(film));
            File.Delete(film);
            Fails<TimeoutException>(Session.Media.StopRecordingAsync());
            Session.Media.SetTorch(true);
            Assert.AreEqual("\"on\"", Device.State("device.torch"));
        }

        [Test]
        public void ANewDeviceForgetsWhoListened()
        {
            var seen = new List<DeviceObservation>();
            SimulatedDevice.SetObserver(seen.Add);
            using (var next = new SimulatedDevice(Folder))
            using (var session = new ScanSession(next.NewSettings()))
            {
                next.Run(session, session.InitializeAsync());
                next.Run(session, session.StartAsync());
                session.Media.Share(Folder + "/none");
            }
            Assert.IsEmpty(seen);
        }

        private void Scan()
        {
            Device.ScanRoom(TestFiles.Flat, seconds: 1);
            Start();
            Device.Run(Session, 1.5);
        }

        private void Fails<T>(Task task) where T : Exception
        {
            Assert.Throws<T>(() => Device.Run(Session, task));
        }
    }
}
