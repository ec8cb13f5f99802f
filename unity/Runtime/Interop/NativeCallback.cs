using System.Runtime.InteropServices;

namespace Vantorel.Interop
{
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    internal delegate void NativeCallback();
}
