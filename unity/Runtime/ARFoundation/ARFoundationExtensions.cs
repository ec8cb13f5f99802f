using System;
using Unity.XR.CoreUtils;
using UnityEngine;
using UnityEngine.XR.ARFoundation;

namespace Vantorel
{
    /// <summary>Scans inside of AR Foundation's session: one camera, one space, and the app draws the picture.</summary>
    public static class ARFoundationExtensions
    {
        /// <summary>
        /// Scans use AR Foundation's session from now on; the library shows nothing of its own. Before the library is
        /// started, and once AR Foundation's session is there. In the Editor the simulated device's session stands in.
        /// </summary>
        /// <exception cref="NotSupportedException">No LiDAR, or before iOS 17.</exception>
        /// <exception cref="InvalidOperationException">The library is up, or AR Foundation has no session yet.</exception>
        public static void UseARFoundation(this ScanSession session, ARSession arSession)
        {
            if (!ScanSession.IsMultiRoomSupported)
                throw new NotSupportedException("Scanning in the app's own AR session needs iOS 17 and a LiDAR scanner.");
            IntPtr native = NativeARSession(arSession);
            session.Options.UsesOwnARSession = true;
            session.Options.SetARSession(native);
        }

        /// <summary>
        /// What is drawn below `root` with local poses of the room stands where the room is, wherever the origin is moved.
        /// </summary>
        public static void AlignWith(this Transform root, XROrigin origin) => root.SetParent(origin.TrackablesParent, false);

        private static IntPtr NativeARSession(ARSession arSession)
        {
#if UNITY_EDITOR
            return Simulation.SimulatedDevice.ARSession;
#else
            return NativeSession.ARSessionOf(arSession.subsystem == null ? IntPtr.Zero : arSession.subsystem.nativePtr);
#endif
        }
    }
}
