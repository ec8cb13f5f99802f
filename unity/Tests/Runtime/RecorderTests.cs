using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using NUnit.Framework;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    [TestFixture]
    public class RecorderTests : DeviceTest
    {
        private string Recording => Path.Combine(Path.GetTempPath(), "vantorel-" + GetHashCode() + ".recording");

        [TearDown]
        public void Remove()
        {
            File.Delete(Recording);
            File.Delete(Recording + ".part");
        }

        [Test]
        public void ARecordingPlaysTheSameCallbacks()
        {
            foreach (string path in TestFiles.Rooms)
            {
                SwitchOff();
                SwitchOn();
                Device.ScanRoom(path, seconds: 3, rate: 4);
                using (var recorder = new ScanRecorder(Session, Recording))
                {
                    var scanned = Callbacks(TwoRooms(() => Device.ScanRoom(TestFiles.Flat, seconds: 2, rate: 4)));
                    recorder.Finish();
                    SwitchOff();
                    SwitchOn();
                    Device.PlayRecording(Recording);
                    var played = Callbacks(TwoRooms(() => { }));
                    Assert.IsTrue(scanned.SequenceEqual(played), Difference(path, scanned, played));
                    Assert.Greater(scanned.Count, 20, path);
                }
            }
        }

        [Test]
        public void ACoreModelIsRecordedOnce()
        {
            Device.ScanRoom(TestFiles.Flat, seconds: 2, rate: 10);
            using (var recorder = new ScanRecorder(Session, Recording))
            {
                Start();
                Device.Run(Session, 3);
                Assert.IsTrue(File.Exists(Recording + ".part") && !File.Exists(Recording));
                recorder.Finish();
            }
            var lines = File.ReadAllLines(Recording);
            Assert.AreEqual(1, lines.Count(line => line.Contains("\"coreModel\"")));
            Assert.AreEqual(19, lines.Count(line => line.Contains("\"sameCoreModel\":true")));
        }

        [TestCase("{ \"a b\\\" c\" :\n [1, 2] }\n", "{\"a b\\\" c\":[1,2]}")]
        [TestCase("[\u0001,\t\"\\", "[\u0001,\"\\")]
        public void JsonIsWrittenWithoutItsBlanks(string json, string compact)
        {
            var written = new MemoryStream();
            CompactJson.Write(new ArraySegment<byte>(Encoding.UTF8.GetBytes(json)), written);
            Assert.AreEqual(compact, Encoding.UTF8.GetString(written.ToArray()));
        }

        [Test]
        public void WhatCannotBeRecordedIsToldAtTheEnd()
        {
            Assert.Throws<DirectoryNotFoundException>(() => new ScanRecorder(Session, Folder + "/none/x"));
            using (var recorder = new ScanRecorder(Session, Recording))
            {
                Assert.Throws<InvalidOperationException>(() => new ScanRecorder(Session, Recording));
                Start();
                Device.Advance(3700);
                Device.DeliverInstruction("slowDown");
                Session.Tick();
                StringAssert.Contains("an hour", Assert.Throws<IOException>(recorder.Finish).Message);
                Assert.IsFalse(File.Exists(Recording));
            }
        }

        /// <summary>The app: two rooms of one space, the first with a pause in it.</summary>
        private Action TwoRooms(Action beforeTheSecond) => () =>
        {
            Start();
            Device.Run(Session, 1, step: 0.05);
            Session.PauseScanning();
            Device.Run(Session, 0.5, step: 0.05);
            Session.ContinueScanning();
            Device.Run(Session, 2, step: 0.05);
            beforeTheSecond();
            Session.BeginNextRoom();
            Device.Run(Session, 3, step: 0.05);
            Run(Session.StopAsync());
        };

        private List<string> Callbacks(Action app)
        {
            var heard = new List<string>();
            Action<string> hear = what => heard.Add(SimulatedDevice.Time.ToString("0.00") + " " + what);
            Session.ScanStarted += () => hear("started");
            Session.ScanEnded += () => hear("ended");
            Session.InstructionReceived += coaching => hear(coaching.Text);
            Session.RoomUpdated += () => hear(Session.RoomText + string.Join(" ", Session.CameraPose));
            app();
            return heard;
        }

        private static string Difference(string path, List<string> scanned, List<string> played)
        {
            int first = scanned.Zip(played, (a, b) => a == b).TakeWhile(same => same).Count();
            return path + ": " + scanned.Count + " and " + played.Count + " callbacks, equal up to " + first;
        }
    }
}
