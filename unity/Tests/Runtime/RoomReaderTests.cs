using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Newtonsoft.Json.Linq;
using NUnit.Framework;

namespace Vantorel.Tests
{
    [TestFixture]
    public class RoomReaderTests
    {
        private const string Wall =
            "{\"identifier\":\"W\",\"category\":{\"wall\":{}},\"confidence\":{\"high\":{}},\"dimensions\":[3.5,2.4,0]," +
            "\"transform\":[1,0,0,0,0,1,0,0,0,0,1,0,1e-05,-2.5E2,3,1],\"curve\":null,\"parentIdentifier\":null," +
            "\"completedEdges\":[]}";

        [Test]
        public void TheOldestGenerationLacksMuchAndIsRead()
        {
            var room = CapturedRoom.Parse("{\"version\":1,\"walls\":[" + Wall + "],\"doors\":[],\"objects\":null}");
            Assert.AreEqual(1, room.Version);
            Assert.IsNull(room.Story ?? room.Walls[0].Story);
            Assert.IsNull(room.ReferenceOriginTransform);
            Assert.AreEqual(0, room.Objects.Count + room.Floors.Count + room.Sections.Count);
            Assert.AreEqual(0, room.Walls[0].PolygonCorners.Count);
            Assert.AreEqual(SurfaceCategory.Wall, room.Walls[0].Category.Value);
            Assert.AreEqual(Confidence.High, room.Walls[0].Confidence.Value);
            CollectionAssert.AreEqual(new[] { 1e-05f, -250, 3, 1 }, room.Walls[0].Transform.Skip(12));
        }

        [Test]
        public void WhatLaterSystemsAddIsKeptOrSkipped()
        {
            var room = CapturedRoom.Parse(
                "\uFEFF{\"later\":{\"a\":[1,{}]},\"version\":3,\"story\":-1," +
                "\"referenceOriginTransform\":[1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1]," +
                "\"walls\":[" + Wall.Replace("\"wall\":{}", "\"beam\":{\"load\":[2]}")
                    .Replace("\"curve\":null", "\"curve\":{\"radius\":2}")
                    .Replace("\"completedEdges\":[]", "\"completedEdges\":[{\"left\":{}},{\"front\":{}}]") + "]," +
                "\"doors\":[" + Wall.Replace("\"wall\":{}", "\"door\":{\"lock\":1,\"isOpen\":true}") + "]," +
                "\"objects\":[{\"identifier\":\"O\",\"category\":{\"piano\":{}}," +
                "\"attributes\":{\"PianoType\":\"gr\\u00E4nd\\/\\n\"}}]," +
                "\"sections\":[{\"label\":\"attic\",\"center\":[1,2,3],\"story\":2}]}");
            var wall = room.Walls[0];
            Assert.AreEqual("beam", wall.Category.Word);
            Assert.AreEqual(SurfaceCategory.Unknown, wall.Category.Value);
            StringAssert.StartsWith("{\"radius\":2", wall.CurveJson);
            CollectionAssert.AreEqual(new[] { "left", "front" }, wall.CompletedEdges.Select(edge => edge.Word));
            Assert.AreEqual(true, room.Doors[0].IsOpen);
            Assert.AreEqual("piano", room.Objects[0].Category.Word);
            Assert.AreEqual("gränd/\n", room.Objects[0].Attributes["PianoType"]);
            Assert.IsNull(room.Objects[0].Transform);
            Assert.AreEqual("", room.Objects[0].Confidence.Word);
            Assert.AreEqual("attic", room.Sections[0].Label.Word);
            Assert.AreEqual(-1, room.Story);
        }

        [Test]
        public void TheCoreModelIsNeverLookedInto()
        {
            string odd = "\"coreModel\" : \"a\\\"b\\\\\\/\\uZZZZ\",";  // an escape that JSON does not have
            Assert.AreEqual(2, CapturedRoom.Parse("{" + odd + "\"version\":2}").Version);
            string before = "{\"label\":\"coreModel\",\"x\":\"\\\"coreModel\\\":\\\"\",";
            byte[] text = Encoding.UTF8.GetBytes(before + odd + "\"version\":2}");
            var found = CoreModel.Find(text, 0, text.Length).Value;
            Assert.AreEqual(odd.TrimEnd(','), Encoding.UTF8.GetString(text, found.KeyStart, found.ValueEnd - found.KeyStart));
            Assert.IsNull(CoreModel.Find(text, found.ValueEnd, text.Length));
        }

        [TestCase("", "expected a value")]
        [TestCase("null", "expected an object")]
        [TestCase("{}", "\"version\"")]
        [TestCase("{\"version\":2} x", "column 15")]
        [TestCase("{\"version\":2,}", "a key")]
        [TestCase("{\"version\":2.5}", "(version): expected a whole number")]
        [TestCase("{\"version\":02}", "a value")]
        [TestCase("{\"version\":1e400}", "a value")]
        [TestCase("{\"version\":2\n,\"walls\":[{\"dimensions\":[1,2]}]}", "Line 2, column 30 (walls[0].dimensions")]
        [TestCase("{\"version\":2,\"walls\":[{\"identifier\":7}]}", "a text")]
        [TestCase("{\"version\":2,\"walls\":[{\"dimensions\":[1,2,1e39]}]}", "32 bits")]
        [TestCase("{\"version\":2,\"walls\":[", "a value")]
        [TestCase("{\"version\":2,\"walls\":[{\"polygonCorners\":[null]}]}", "3 numbers")]
        [TestCase("{\"version\":2,\"a\":\"b", "with an end")]
        [TestCase("{\"version\":2,\"a\":\"\\x\"}", "escapes")]
        [TestCase("{\"version\":2]", "the end of the list")]
        [TestCase("{\"version\":2,\"rooms\":[]}", "structure")]
        public void WhatIsNoRoomIsRefusedWithThePlace(string text, string reason)
        {
            var refusal = Assert.Throws<FormatException>(() => CapturedRoom.Parse(text));
            StringAssert.Contains(reason, refusal.Message);
        }

        [Test]
        public void HostileNestingIsRefused()
        {
            Assert.Throws<FormatException>(() => CapturedRoom.Parse("{\"a\":" + new string('[', 1000000)));
        }

        [Test]
        public void NumbersAreTheNearestFloats()
        {
            var random = new Random(7);
            for (int i = 0; i < 20000; ++i)
            {
                double number = (random.NextDouble() - 0.5) * Math.Pow(10, random.Next(-30, 30));
                string text = i % 2 == 0 ? number.ToString("R") : ((float)number).ToString("R");
                byte[] bytes = Encoding.ASCII.GetBytes(text);
                int at = 0;
                Assert.AreEqual((float)double.Parse(text), (float)NumberText.Take(bytes, ref at, bytes.Length), text);
                Assert.AreEqual(bytes.Length, at);
            }
        }

        [Test]
        public void AllValuesOfRealRoomsAreThere()
        {
            foreach (string path in TestFiles.Rooms)
            {
                var json = JObject.Parse(File.ReadAllText(path));
                var room = CapturedRoom.Load(path);
                AssertSurfaces(json, "walls", room.Walls, path);
                AssertSurfaces(json, "doors", room.Doors, path);
                AssertSurfaces(json, "windows", room.Windows, path);
                AssertSurfaces(json, "openings", room.Openings, path);
                AssertSurfaces(json, "floors", room.Floors, path);
                var pieces = json["objects"].ToArray();
                Assert.AreEqual(pieces.Length, room.Objects.Count, path);
                for (int i = 0; i < pieces.Length; ++i)
                {
                    AssertNumbers(pieces[i]["transform"], room.Objects[i].Transform);
                    Assert.AreNotEqual(ObjectCategory.Unknown, room.Objects[i].Category.Value);
                    var attributes = pieces[i]["attributes"] ?? new JObject();
                    CollectionAssert.AreEqual(attributes.Children<JProperty>().Select(one => one.Name + (string)one.Value),
                                              room.Objects[i].Attributes.Select(one => one.Key + one.Value));
                }
            }
        }

        private static void AssertSurfaces(JObject json, string key, IReadOnlyList<Surface> read, string path)
        {
            var given = (json[key] ?? new JArray()).ToArray();
            Assert.AreEqual(given.Length, read.Count, path + " " + key);
            for (int i = 0; i < given.Length; ++i)
            {
                AssertNumbers(given[i]["transform"], read[i].Transform);
                AssertNumbers(given[i]["dimensions"], read[i].Dimensions);
                Assert.AreEqual((string)given[i]["identifier"], read[i].Identifier);
                Assert.AreEqual((string)given[i]["parentIdentifier"], read[i].ParentIdentifier);
                Assert.AreEqual((bool?)given[i]["category"].SelectToken("door.isOpen"), read[i].IsOpen);
                Assert.AreEqual((given[i]["polygonCorners"] ?? new JArray()).Count(), read[i].PolygonCorners.Count);
                Assert.AreNotEqual(Confidence.Unknown, read[i].Confidence.Value);
            }
        }

        private static void AssertNumbers(JToken given, float[] read)
        {
            CollectionAssert.AreEqual(given.Select(number => (float)number), read);
        }
    }
}
