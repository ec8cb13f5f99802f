using System;
using System.Runtime.InteropServices;

namespace Vantorel.Interop
{
    /// <summary>
    /// The functions of vantorel.h under their own names; what they do is told there. Texts in are UTF-8 with a NUL
    /// behind (<see cref="NativeText.ToNative"/>); texts out are taken with <see cref="NativeText.Take"/>.
    /// </summary>
    internal static class Native
    {
#if UNITY_IOS && !UNITY_EDITOR
        internal const string Library = "__Internal";
#else
        internal const string Library = "vantorel";
#endif
        internal const CallingConvention Convention = CallingConvention.Cdecl;

        // ---- Lifecycle and flags ----

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void prepareVTLResources();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void initializeVTL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void disposeVTL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVantorelXRSession(IntPtr arSession);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLCustomXREnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLDefaultScanEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLDefaultMiniatureModelEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLDefaultScanDataTransferEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLCoachingEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLInstructionEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLMultiRoomEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isVTLARWorldMapEnabled([MarshalAs(UnmanagedType.U1)] bool value);

        // ---- Capture session ----

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void startCaptureSession();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void runCaptureSession();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void stopCaptureSession();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void stopCaptureSessionWithPause([MarshalAs(UnmanagedType.U1)] bool pauseARSession);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void pauseCaptureSessionScanning();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void resumeCaptureSessionScanning();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void createNewRoomCaptureSession();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void startCaptureSessionWithARWorldMap(byte[] path);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void stopCaptureSessionWithARWorldMap(byte[] path);

        // ---- Saving and merging ----

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void saveRoomPlanExperience(byte[] directoryName, byte[] scanName);

        [DllImport(Library, CallingConvention = Convention)]
        [return: MarshalAs(UnmanagedType.U1)]
        internal static extern bool trySaveRoomPlanExperience(byte[] directoryName, byte[] scanName);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void mergeScans(byte[] data, byte[] directoryName, byte[] scanName);

        // ---- Media, sharing, torch ----

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setFlashlightStatus([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void vtl_QuickLook(byte[] path);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void vtl_shareFolder(byte[] path);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void vtl_shareFile(byte[] path);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void screenshotVTL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isNativeScreenshot([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isNativeScreenshotPreview([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern IntPtr getVTLNativeScreenshotOutputURL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void screenshotShareVTL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void startScreenRecorderVTL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void stopScreenRecorderVTL();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isNativeScreenRecorder([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void isNativeScreenRecorderPreview([MarshalAs(UnmanagedType.U1)] bool value);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern IntPtr getVTLNativeScreenRecorderOutputURL();

        // ---- Queries ----

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern IntPtr getVantorelVersion();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern IntPtr getVTLARCameraMatrixRuntime();

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern IntPtr getVTLARCameraProjectionMatrixRuntime();

        [DllImport(Library, CallingConvention = Convention)]
        [return: MarshalAs(UnmanagedType.U1)]
        internal static extern bool VantorelSupport();

        [DllImport(Library, CallingConvention = Convention)]
        [return: MarshalAs(UnmanagedType.U1)]
        internal static extern bool MultiRoomSupport();

        [DllImport(Library, CallingConvention = Convention)]
        [return: MarshalAs(UnmanagedType.U1)]
        internal static extern bool ARWorldMapSupport();

        // ---- Callbacks ----

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLDidStart(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLDidEnd(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionDidStart(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionDidEnd(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionDidAdd(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionDidUpdate(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionDidChange(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionDidRemove(NativeCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLCaptureSessionInstruction(NativeTextCallback callback);

        [DllImport(Library, CallingConvention = Convention)]
        internal static extern void setVTLRoomSnapshot(NativeTextCallback callback);
    }
}
