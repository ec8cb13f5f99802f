using System.IO;
using System.Linq;
using NUnit.Framework;
using UnityEngine;
using Vantorel.Samples;

namespace Vantorel.Tests
{
    [TestFixture]
    public class SampleTests : DeviceTest
    {
        private ScanARoom sample;

        [SetUp]
        public void MakeScene()
        {
            Session.Dispose();
            Application.persistentDataPath = Folder;
            GameObject.Primitives.Clear();
            sample = new GameObject().AddComponent<ScanARoom>();
            sample.Send("Start");
        }

        [TearDown]
        public void Leave() => sample.GetComponent<RoomScanner>().Send("OnDestroy");

        [Test]
        public void TheSampleScansDrawsAndSaves()
        {
            Device.ScanRoom(TestFiles.Flat, seconds: 2);
            Press("Scan");
            Frames(5);
            CollectionAssert.Contains(GUILayout.Labels, "Move closer to the wall.");
            Frames(25);
            var room = CapturedRoom.Load(TestFiles.Flat);
            int things = room.Floors.Count + room.Walls.Count + room.Doors.Count + room.Windows.Count + room.Objects.Count;
            Assert.AreEqual(things, GameObject.Primitives.Count(box => !box.IsDestroyed));
            foreach (var piece in room.Objects) AssertBoxStandsWhere(piece);
            Assert.That(GameObject.Primitives.Select(box => box.transform.parent), Is.All.SameAs(sample.transform));

            Press("Save");
            Frames(5);
            StringAssert.StartsWith("Saved as ", GUILayout.Labels.Last());
            Assert.AreEqual(1, Directory.GetFiles(Folder, "scan.json", SearchOption.AllDirectories).Length);
        }

        [Test]
        public void WhatGoesWrongIsSaid()
        {
            Device.SetOption("lidar", "off");
            Press("Scan");
            Frames(1);
            StringAssert.Contains("LiDAR", GUILayout.Labels.Last());
        }

        /// <summary>Two corners of the piece, mirrored into Unity's space, are those of its box.</summary>
        private static void AssertBoxStandsWhere(RoomObject piece)
        {
            float[] pose = piece.Transform, size = piece.Dimensions;
            foreach (var corner in new[] { new Vector3(0.5f, 0.5f, 0.5f), new Vector3(-0.5f, 0.5f, 0.5f) })
            {
                float[] local = { corner.x * size[0], corner.y * size[1], corner.z * size[2], 1 };
                float[] world = { Dot(pose, 0, local), Dot(pose, 1, local), Dot(pose, 2, local) };
                double nearest = GameObject.Primitives.Min(box => Distance(Corner(box.transform, corner), world));
                Assert.Less(nearest, 1e-4, piece.Category.Word);
            }
        }

        private static float Dot(float[] pose, int row, float[] point)
        {
            return Enumerable.Range(0, 4).Sum(column => pose[4 * column + row] * point[column]);
        }

        /// <summary>A cube's corner in Unity's space; the same corner of the room's piece has the other z.</summary>
        private static Vector3 Corner(Transform box, Vector3 corner)
        {
            var local = new Vector3(corner.x * box.localScale.x, corner.y * box.localScale.y, -corner.z * box.localScale.z);
            Vector3 turned = box.localRotation * local, at = box.localPosition;
            return new Vector3(turned.x + at.x, turned.y + at.y, turned.z + at.z);
        }

        private static double Distance(Vector3 unity, float[] roomPlan)
        {
            float[] apart = { unity.x - roomPlan[0], unity.y - roomPlan[1], unity.z + roomPlan[2] };
            return apart.Max(number => System.Math.Abs(number));
        }

        private void Press(string button)
        {
            GUILayout.Pressed = button;
            sample.Send("OnGUI");
            GUILayout.Pressed = null;
        }

        private void Frames(int count)
        {
            for (int i = 0; i < count; ++i)
            {
                Device.Advance(0.1);
                sample.GetComponent<RoomScanner>().Send("Update");
                sample.Send("OnGUI");
            }
        }
    }
}
