using System;
using System.Collections.Generic;
using NUnit.Framework;
using Vantorel.Editor;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    /// <summary>The device of Play, and when it is on.</summary>
    [TestFixture]
    public class PlayTests : DeviceTest
    {
        private readonly List<string> lines = new List<string>();
        private readonly List<string> complaints = new List<string>();
        private DeviceSettings settings;
        private PlaySwitch play;

        [SetUp]
        public void PrepareToPlay()
        {
            Device.Dispose();
            lines.Clear();
            complaints.Clear();
            settings = new DeviceSettings { secondsPerRoom = 2 };
            var paths = new PlayPaths
            {
                ProjectFolder = TestFiles.Root, DocumentsFolder = Folder, SampleRoom = TestFiles.Flat,
            };
            play = new PlaySwitch(() => new PlayDevice(settings, paths, lines.Add, complaints.Add));
        }

        [TearDown]
        public void StopPlaying() => play.OnPlayEnded();

        [Test]
        public void StopInMidScanEndsInOnePowerCycle()
        {
            play.OnPlayBegins(reloadsScripts: true);
            Assert.IsNull(play.Device, "the reload comes first");
            play.OnScriptsUnload();
            play.OnScriptsLoaded(isPlaying: true);
            ScanHalf();
            AssertOnePowerCycle(play.OnPlayEnded, play.OnScriptsUnload, () => play.OnScriptsLoaded(isPlaying: false));
        }

        [Test]
        public void PlayWithoutAReloadEndsInOnePowerCycle()
        {
            for (int i = 0; i < 2; ++i)
            {
                play.OnPlayBegins(reloadsScripts: false);
                ScanHalf();
                AssertOnePowerCycle(play.OnPlayEnded);
            }
        }

        [Test]
        public void ARecompileWhilePlayingEndsInOnePowerCycleAndTheNextScriptsHaveADevice()
        {
            play.OnScriptsLoaded(isPlaying: true);
            ScanHalf();
            AssertOnePowerCycle(play.OnScriptsUnload);
            play.OnScriptsLoaded(isPlaying: true);
            ScanHalf();
        }

        [Test]
        public void TheDeviceIsAsTheSettingsHaveIt()
        {
            settings.iosVersion = "16.4";
            settings.speed = 4;
            settings.faults = new[] { new DeviceFault { call = "writeFile", count = 9 } };
            play.OnScriptsLoaded(isPlaying: true);
            Session = new ScanSession(new ScanSettings { DocumentsFolder = Folder });
            Assert.IsTrue(ScanSession.IsSupported);
            Assert.IsFalse(ScanSession.IsMultiRoomSupported);
            Frames(Session.StartAsync());
            Frames(0.6);  // 2.4 seconds of the device
            Assert.AreEqual(CapturedRoom.Load(TestFiles.Flat).Objects.Count, Session.Room.Objects.Count);
            Assert.Throws<System.IO.IOException>(() => Session.SaveAsync("scans", "flat").GetAwaiter().GetResult());
            Session.Media.Share(TestFiles.Flat);
            CollectionAssert.Contains(lines, "Simulated iPhone: Couldn't create file(s)");
            CollectionAssert.Contains(lines, "Simulated iPhone: share " + TestFiles.Flat);
            CollectionAssert.IsEmpty(complaints);
        }

        [Test]
        public void EachRunSeesTheNextRoomAndAfterTheLastTheFirst()
        {
            settings.rooms = new[] { "samples/flat.json", "samples/house.json" };
            play.OnScriptsLoaded(isPlaying: true);
            Session = new ScanSession(new ScanSettings { DocumentsFolder = Folder });
            var walls = new List<int>();
            for (int run = 0; run < 3; ++run)
            {
                Frames(Session.StartAsync());
                Frames(2.5);
                walls.Add(Session.Room.Walls.Count);
                Frames(Session.StopAsync());
            }
            int flat = CapturedRoom.Load(TestFiles.Flat).Walls.Count;
            int house = CapturedRoom.Load(TestFiles.Sample("house.json")).Walls.Count;
            Assert.AreNotEqual(flat, house);
            CollectionAssert.AreEqual(new[] { flat, house, flat }, walls);
        }

        [Test]
        public void ARecordingIsPlayedInEachPlayAnew()
        {
            settings.source = ScanSource.Recording;
            settings.recording = "samples/two-rooms.jsonl";
            play.OnScriptsLoaded(isPlaying: true);
            Session = new ScanSession(new ScanSettings { DocumentsFolder = Folder });
            Frames(Session.StartAsync());
            Frames(3);
            Assert.Greater(Session.UpdateCount, 0);
            CollectionAssert.IsEmpty(complaints);
        }

        [Test]
        public void AFrameThatABreakpointHeldUpIsOneSecond()
        {
            play.OnScriptsLoaded(isPlaying: true);
            play.Device.Advance(60);
            Assert.AreEqual(1, SimulatedDevice.Time);
        }

        [Test]
        public void WhatCannotBeSetUpIsToldOnceAndTheRestCounts()
        {
            settings.iosVersion = "15.0";
            settings.rooms = new[] { "nowhere.json" };
            settings.faults = new[] { new DeviceFault { call = "noSuchCall" }, new DeviceFault { call = "archive\0" } };
            settings.hasLidar = false;
            play.OnScriptsLoaded(isPlaying: true);
            Frames(1);
            Assert.AreEqual(4, complaints.Count, string.Join("\n", complaints));
            StringAssert.Contains("nowhere.json", complaints[3]);
            Assert.IsFalse(ScanSession.IsSupported);
        }

        [Test]
        public void AFatalStopIsACrashedDeviceUntilTheNextPlay()
        {
            settings.faults = new[] { new DeviceFault { call = "loadView" } };
            play.OnScriptsLoaded(isPlaying: true);
            Session = new ScanSession(new ScanSettings { DocumentsFolder = Folder });
            var start = Session.StartAsync();
            Frames(0.5);
            StringAssert.Contains("crashed", play.Device.Failure);
            Assert.AreEqual(1, complaints.Count, string.Join("\n", complaints));
            Assert.IsFalse(start.IsCompleted);
            AssertOnePowerCycle(play.OnPlayEnded);
            Assert.IsTrue(start.IsCanceled, "a power cycle ends what waits");
            settings.faults = new DeviceFault[0];
            play.OnScriptsLoaded(isPlaying: true);
            ScanHalf();
        }

        [Test]
        public void ATestsOwnDeviceReplacesThatOfPlay()
        {
            play.OnScriptsLoaded(isPlaying: true);
            using (var stepped = new SimulatedDevice(Folder))
            {
                Frames(1);
                Assert.AreEqual(0, SimulatedDevice.Time);
                stepped.Advance(1);
                AssertNoPowerCycle(play.OnPlayEnded);
            }
        }

        private void ScanHalf()
        {
            Session = new ScanSession(new ScanSettings { DocumentsFolder = Folder });
            Frames(Session.StartAsync());
            Frames(1);
            Assert.IsTrue(Session.IsScanning);
            Assert.Greater(Session.Room.Walls.Count, 0);
        }

        private void Frames(System.Threading.Tasks.Task task)
        {
            while (!task.IsCompleted) Frames(0.1);
            task.GetAwaiter().GetResult();
        }

        private void Frames(double seconds)
        {
            for (int i = 0; i < seconds * 10 - 0.5; ++i)
            {
                play.Device.Advance(0.1);
                Session.Tick();
            }
        }

        /// <summary>The first step cycles the power, the others do not.</summary>
        private void AssertOnePowerCycle(Action first, params Action[] others)
        {
            Assert.Greater(SimulatedDevice.Time, 0);
            first();
            Assert.AreEqual(0, SimulatedDevice.Time);
            Device.Advance(1);
            foreach (var step in others) AssertNoPowerCycle(step);
        }

        private static void AssertNoPowerCycle(Action step)
        {
            double before = SimulatedDevice.Time;
            Assert.Greater(before, 0);
            step();
            Assert.AreEqual(before, SimulatedDevice.Time);
        }
    }
}
