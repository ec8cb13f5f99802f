using System;
using System.Reflection;
using NUnit.Framework;
using UnityEngine;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    [TestFixture]
    public class RoomScannerTests : DeviceTest
    {
        private RoomScanner scanner;

        [SetUp]
        public void Awake()
        {
            Session.Dispose();
            Application.persistentDataPath = Folder;
            scanner = new RoomScanner();
            scanner.Send("Awake");
        }

        [Test]
        public void AComponentScansAndSaves()
        {
            Device.ScanRoom(TestFiles.Flat, seconds: 1);
            Await(scanner.Session.StartAsync());
            Frames(12);
            Assert.Greater(scanner.Session.Room.Walls.Count, 0);
            var save = scanner.Session.SaveAsync("scans", "first");
            Await(save);
            StringAssert.StartsWith(Folder, save.Result.JsonPath);
            scanner.Send("OnDestroy");
            Assert.IsFalse(scanner.Session.IsScanning);
        }

        [Test]
        public void ASecondComponentIsRefusedAndDoesNoHarm()
        {
            var second = new RoomScanner();
            var refusal = Assert.Throws<TargetInvocationException>(() => second.Send("Awake"));
            Assert.IsInstanceOf<InvalidOperationException>(refusal.InnerException);
            second.Send("Update");
            second.Send("OnDestroy");
            Await(scanner.Session.StartAsync());
        }

        [Test]
        public void TheCameraComesAsMatricesInUnitysSpace()
        {
            Assert.IsFalse(scanner.Session.TryGetCamera(out var pose, out var projection));
            Await(scanner.Session.StartAsync());
            // A quarter turn about y, at (1, 2, 3), column by column.
            Device.SetOption("camera", "0 0 -1 0  0 1 0 0  1 0 0 0  1 2 3 1");
            Frames(1);
            Assert.IsTrue(scanner.Session.TryGetCamera(out pose, out projection));
            // RoomPlan's camera looks along its -z, here the world's -x: so does Unity's along its z.
            AssertPoint(new Vector3(1, 2, -3), pose.MultiplyPoint3x4(new Vector3(0, 0, 0)));
            AssertPoint(new Vector3(0, 2, -3), pose.MultiplyPoint3x4(new Vector3(0, 0, 1)));
            AssertPoint(new Vector3(1, 3, -3), pose.MultiplyPoint3x4(new Vector3(0, 1, 0)));
            Assert.AreNotEqual(0, projection[3, 2]);
        }

        [Test]
        public void AWallStandsInUnitysSpace()
        {
            var wall = CapturedRoom.Load(TestFiles.Flat).Walls[0];
            float[] at = { wall.Transform[12], wall.Transform[13], wall.Transform[14] };
            AssertPoint(new Vector3(at[0], at[1], -at[2]), wall.UnityPose().MultiplyPoint3x4(new Vector3(0, 0, 0)));
            Assert.AreEqual(wall.Dimensions[0], wall.UnitySize().x);
        }

        private static void AssertPoint(Vector3 expected, Vector3 actual)
        {
            Assert.AreEqual(expected.x, actual.x, 1e-6);
            Assert.AreEqual(expected.y, actual.y, 1e-6);
            Assert.AreEqual(expected.z, actual.z, 1e-6);
        }

        private void Await(System.Threading.Tasks.Task task)
        {
            while (!task.IsCompleted) Frames(1);
            task.GetAwaiter().GetResult();
        }

        private void Frames(int count)
        {
            for (int i = 0; i < count; ++i)
            {
                Device.Advance(0.1);
                scanner.Send("Update");
            }
        }
    }
}
