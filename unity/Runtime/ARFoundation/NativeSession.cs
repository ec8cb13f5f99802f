using System;
using System.Runtime.InteropServices;

namespace Vantorel
{
    /// <summary>
    /// What AR Foundation's nativePtr of a session points to on iOS: a version as a 32-bit number and, at the next
    /// pointer's place, the ARSession.
    /// </summary>
    internal static class NativeSession
    {
        /// <summary>Later versions only append to the struct.</summary>
        private const int OldestVersion = 1;

        /// <exception cref="InvalidOperationException">There is no session behind the pointer yet.</exception>
        internal static IntPtr ARSessionOf(IntPtr nativePtr)
        {
            if (nativePtr == IntPtr.Zero || Marshal.ReadInt32(nativePtr) < OldestVersion) throw NoSession();
            IntPtr arSession = Marshal.ReadIntPtr(nativePtr, IntPtr.Size);
            return arSession != IntPtr.Zero ? arSession : throw NoSession();
        }

        private static InvalidOperationException NoSession()
        {
            return new InvalidOperationException("AR Foundation has no ARKit session; wait until ARSession.state is Ready.");
        }
    }
}
