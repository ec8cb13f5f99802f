using System;
using System.Runtime.InteropServices;

namespace Vantorel.Interop
{
    /// <summary>
    /// The C runtime that the library allocates its texts with, so the only one that may free them. On Windows that is
    /// the one that MinGW links to, msvcrt.dll.
    /// </summary>
    internal static class CRuntime
    {
#if UNITY_IOS && !UNITY_EDITOR
        [DllImport("__Internal", EntryPoint = "free", CallingConvention = Native.Convention)]
        internal static extern void Free(IntPtr text);

        [DllImport("__Internal", EntryPoint = "strlen", CallingConvention = Native.Convention)]
        internal static extern UIntPtr Length(IntPtr text);
#else
        private static readonly bool IsWindows = RuntimeInformation.IsOSPlatform(OSPlatform.Windows);
        private static readonly bool IsMac = RuntimeInformation.IsOSPlatform(OSPlatform.OSX);

        internal static void Free(IntPtr text)
        {
            if (IsWindows) FreeOnWindows(text);
            else if (IsMac) FreeOnMac(text);
            else FreeOnLinux(text);
        }

        internal static UIntPtr Length(IntPtr text)
        {
            return IsWindows ? LengthOnWindows(text) : IsMac ? LengthOnMac(text) : LengthOnLinux(text);
        }

        [DllImport("msvcrt", EntryPoint = "free", CallingConvention = Native.Convention)]
        private static extern void FreeOnWindows(IntPtr text);

        [DllImport("libSystem", EntryPoint = "free", CallingConvention = Native.Convention)]
        private static extern void FreeOnMac(IntPtr text);

        [DllImport("libc.so.6", EntryPoint = "free", CallingConvention = Native.Convention)]
        private static extern void FreeOnLinux(IntPtr text);

        [DllImport("msvcrt", EntryPoint = "strlen", CallingConvention = Native.Convention)]
        private static extern UIntPtr LengthOnWindows(IntPtr text);

        [DllImport("libSystem", EntryPoint = "strlen", CallingConvention = Native.Convention)]
        private static extern UIntPtr LengthOnMac(IntPtr text);

        [DllImport("libc.so.6", EntryPoint = "strlen", CallingConvention = Native.Convention)]
        private static extern UIntPtr LengthOnLinux(IntPtr text);
#endif
    }
}
