using System;
using System.IO;
using System.Threading.Tasks;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>
    /// Screenshots, screen recordings, previews, sharing and the torch, whether a scan runs or not. Main thread. What
    /// the library refuses it says on the console alone.
    /// </summary>
    public sealed class ScanMedia
    {
        private readonly ScanSession session;
        private bool sharesScreenshots;
        private bool previewsScreenshots;
        private bool sharesRecordings;
        private bool previewsRecordings;

        internal ScanMedia(ScanSession session)
        {
            this.session = session;
            SharesScreenshots = PreviewsScreenshots = SharesRecordings = PreviewsRecordings = false;
        }

        /// <summary>Each screenshot is shared when it is taken. Default false.</summary>
        public bool SharesScreenshots
        {
            get => sharesScreenshots;
            set => Native.isNativeScreenshot(sharesScreenshots = value);
        }

        /// <summary>Each screenshot is shown when it is taken, before it is shared. Default false.</summary>
        public bool PreviewsScreenshots
        {
            get => previewsScreenshots;
            set => Native.isNativeScreenshotPreview(previewsScreenshots = value);
        }

        /// <summary>Each film is shared when it is written. Default false.</summary>
        public bool SharesRecordings
        {
            get => sharesRecordings;
            set => Native.isNativeScreenRecorder(sharesRecordings = value);
        }

        /// <summary>Each film is shown when it is written, before it is shared. Default false.</summary>
        public bool PreviewsRecordings
        {
            get => previewsRecordings;
            set => Native.isNativeScreenRecorderPreview(previewsRecordings = value);
        }

        /// <summary>The last screenshot; empty before the first.</summary>
        public string ScreenshotPath => NativeText.Take(Native.getVTLNativeScreenshotOutputURL());

        /// <summary>The last film; empty before the first.</summary>
        public string RecordingPath => NativeText.Take(Native.getVTLNativeScreenRecorderOutputURL());

        /// <summary>Switches the torch. Silent without one.</summary>
        public void SetTorch(bool isOn) => Call(() => Native.setFlashlightStatus(isOn));

        /// <summary>Shows a file in the 3D preview.</summary>
        public void Preview(string path) => Call(() => Native.vtl_QuickLook(NativeText.ToNative(path, nameof(path))));

        /// <summary>Brings up the share sheet with a file or a folder.</summary>
        public void Share(string path) => Call(() => Native.vtl_shareFile(NativeText.ToNative(path, nameof(path))));

        /// <summary>Writes a JPEG of the screen into the documents folder and answers its path.</summary>
        /// <exception cref="IOException">There is no screenshot; the console says why.</exception>
        public string TakeScreenshot()
        {
            string before = ScreenshotPath;
            Call(Native.screenshotVTL);
            string path = ScreenshotPath;
            return path != before ? path : throw new IOException("The screenshot could not be taken.");
        }

        /// <summary>Brings up the share sheet with the last screenshot.</summary>
        public void ShareScreenshot() => Call(Native.screenshotShareVTL);

        /// <summary>Films the screen, once the person agrees.</summary>
        public void StartRecording() => Call(Native.startScreenRecorderVTL);

        /// <summary>Writes the film into the temporary folder; done, with its path, once it is there.</summary>
        /// <exception cref="TimeoutException">There is no film; the console says why.</exception>
        public async Task<string> StopRecordingAsync()
        {
            string before = RecordingPath;
            Call(Native.stopScreenRecorderVTL);
            await session.Until(() => RecordingPath != before, "The screen recording was not written.");
            return RecordingPath;
        }

        private void Call(Action call)
        {
            session.RequireAlive();
            call();
        }
    }
}
