using System;
using System.Runtime.InteropServices;

namespace Vantorel.Simulation
{
    /// <summary>The texts belong to the device and are valid during the call only; name may be null.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    internal delegate void NativeDeviceObserver(IntPtr kind, IntPtr name, IntPtr value);
}
