using System;
using System.Runtime.InteropServices;
using Vantorel.Interop;

namespace Vantorel.Simulation
{
    /// <summary>The functions of simulated_device.h under their own names; what they do is told there.</summary>
    internal static class NativeDevice
    {
        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern void vantorelDevicePowerCycle();

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceAdvance(double seconds);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceSettle();

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern double vantorelDeviceTime();

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceThread();

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern void vantorelDeviceSetFreeRunning([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern void vantorelDeviceSetCrashContained([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern void vantorelDeviceSetHandoverSleep(uint microseconds, uint seed);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern void vantorelDeviceSetObserver(NativeDeviceObserver observer);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceState(byte[] name);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceSetDocumentsDirectory(byte[] path);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceSetOption(byte[] name, byte[] value);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceFail(byte[] call, uint count, uint skip);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceSetRoom(byte[] path, double seconds, double rate);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceSetRecording(byte[] path);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceRecord(byte[] path);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceDeliverUpdate(byte[] path);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceDeliverInstruction(byte[] name);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceDeliverEnd(byte[] description);

        [DllImport(Native.Library, CallingConvention = Native.Convention)]
        internal static extern IntPtr vantorelDeviceARSession();
    }
}
