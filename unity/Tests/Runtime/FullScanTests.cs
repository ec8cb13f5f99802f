using System.Collections.Generic;
using System.IO;
using System.Linq;
using NUnit.Framework;

namespace Vantorel.Tests
{
    [TestFixture]
    public class FullScanTests : DeviceTest
    {
        [Test]
        public void EveryRoomIsScannedAndSavedAsItIs()
        {
            foreach (string path in TestFiles.Rooms)
            {
                SwitchOff();
                SwitchOn();
                var events = new List<string>();
                Session.Initialized += () => events.Add("started");
                Session.ScanStarted += () => events.Add("scan started");
                Session.ScanEnded += () => events.Add("scan ended");
                Session.ShutDown += () => events.Add("ended");
                int updates = 0;
                Session.RoomUpdated += () => ++updates;
                Session.InstructionReceived += coaching => events.Add(coaching.Text);

                Device.ScanRoom(path, seconds: 4, rate: 5);
                Start();
                Device.Run(Session, 4);
                var saved = Run(Session.SaveAsync("räume", "erster"));
                Run(Session.StopAsync());
                Run(Session.ShutDownAsync());

                string name = Path.GetFileName(path);
                Assert.AreEqual(20, updates, name);
                CollectionAssert.AreEqual(
                    new[] { "started", "scan started", "MoveCloseToWall", "Normal", "SlowDown", "Normal",
                            "MoveAwayFromWall", "Normal", "scan ended", "ended" }, events, name);
                Assert.IsTrue(File.ReadAllText(saved.JsonPath) == Session.RoomText, name + ": scan.json is the last room");
                Assert.Greater(new FileInfo(saved.ModelPath).Length, 0, name);
                AssertSameRoom(CapturedRoom.Load(path), Session.Room, name);
            }
        }

        private static void AssertSameRoom(CapturedRoom given, CapturedRoom scanned, string name)
        {
            Assert.AreEqual(given.Version, scanned.Version, name);
            CollectionAssert.AreEquivalent(Describe(given), Describe(scanned), name);
        }

        private static IEnumerable<string> Describe(CapturedRoom room)
        {
            var surfaces = new[] { room.Walls, room.Doors, room.Windows, room.Openings, room.Floors }.SelectMany(all => all);
            return surfaces
                .Select(wall => Describe(wall.Identifier, wall.Category.Word, wall.Transform) + wall.IsOpen)
                .Concat(room.Objects.Select(piece => Describe(piece.Identifier, piece.Category.Word, piece.Transform)))
                .Concat(room.Sections.Select(section => Describe(null, section.Label.Word, section.Center)));
        }

        private static string Describe(string identifier, string word, float[] numbers)
        {
            return identifier + " " + word + " " + string.Join(" ", numbers.Select(number => number.ToString("R")));
        }
    }
}
