using System;
using System.Runtime.InteropServices;

namespace Vantorel.Interop
{
    /// <summary>The receiver owns the text and frees it.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    internal delegate void NativeTextCallback(IntPtr text);
}
