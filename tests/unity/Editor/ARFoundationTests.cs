using System;
using System.Runtime.InteropServices;
using NUnit.Framework;
using Unity.XR.CoreUtils;
using UnityEngine;
using UnityEngine.XR.ARFoundation;

namespace Vantorel.Tests
{
    [TestFixture]
    public class ARFoundationTests : DeviceTest
    {
        [Test]
        public void InTheEditorAScanUsesTheSimulatedDevicesSession()
        {
            Session.UseARFoundation(new ARSession());
            Device.ScanRoom(TestFiles.Flat, seconds: 1);
            Start();
            Assert.AreEqual("true", Device.State("captureSession.usesHostARSession"));
            Device.Run(Session, 1);
            Assert.Greater(Session.Room.Walls.Count, 0);
        }

        [Test]
        public void BeforeIos17ThereIsNoSuchThing()
        {
            Device.SetOption("ios", "16.4");
            Assert.Throws<NotSupportedException>(() => Session.UseARFoundation(new ARSession()));
            Assert.IsFalse(Session.Options.UsesOwnARSession);
        }

        [Test]
        public void TheSessionIsReadFromBehindTheVersion()
        {
            IntPtr native = Marshal.AllocHGlobal(2 * IntPtr.Size);
            try
            {
                var arSession = new IntPtr(0x1234);
                Write(native, 1, arSession);
                Assert.AreEqual(arSession, NativeSession.ARSessionOf(native));
                Write(native, 1, IntPtr.Zero);
                Assert.Throws<InvalidOperationException>(() => NativeSession.ARSessionOf(native));
                Write(native, 0, arSession);
                Assert.Throws<InvalidOperationException>(() => NativeSession.ARSessionOf(native));
                Assert.Throws<InvalidOperationException>(() => NativeSession.ARSessionOf(IntPtr.Zero));
            }
            finally
            {
                Marshal.FreeHGlobal(native);
            }
        }

        [Test]
        public void ARoomHangsBelowTheOriginsTrackables()
        {
            var origin = new XROrigin { TrackablesParent = new GameObject().transform };
            var root = new GameObject().transform;
            root.AlignWith(origin);
            Assert.AreSame(origin.TrackablesParent, root.parent);
        }

        private static void Write(IntPtr native, int version, IntPtr arSession)
        {
            Marshal.WriteIntPtr(native, new IntPtr(-1));
            Marshal.WriteInt32(native, version);
            Marshal.WriteIntPtr(native, IntPtr.Size, arSession);
        }
    }
}
