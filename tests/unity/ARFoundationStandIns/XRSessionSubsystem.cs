using System;

namespace UnityEngine.XR.ARSubsystems
{
    public sealed class XRSessionSubsystem
    {
        public IntPtr nativePtr { get; set; }
    }
}
