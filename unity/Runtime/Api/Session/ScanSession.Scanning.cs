using System;
using System.IO;
using System.Threading.Tasks;
using Vantorel.Interop;

namespace Vantorel
{
    public sealed partial class ScanSession
    {
        private string underWay;

        /// <summary>
        /// Builds the platform's views once and throws them away, so that the first scan starts faster. Only while
        /// there is no scan.
        /// </summary>
        public void Prepare()
        {
            RequireAlive();
            RequireNoScan();
            Native.prepareVTLResources();
        }

        /// <summary>
        /// Sets the library's view up; done with <see cref="Initialized"/>. <see cref="StartAsync"/> does it too.
        /// </summary>
        /// <exception cref="NotSupportedException">The device cannot scan rooms.</exception>
        /// <exception cref="TimeoutException">The library did not start, as without a window.</exception>
        public Task InitializeAsync() => Exclusively("initialise", Initialize);

        /// <summary>Starts a scan; done with <see cref="ScanStarted"/>.</summary>
        /// <exception cref="NotSupportedException">The device cannot scan rooms.</exception>
        /// <exception cref="InvalidOperationException">A scan runs, or there is no camera usage text.</exception>
        /// <exception cref="TimeoutException">No start came.</exception>
        public Task StartAsync() => Exclusively("start", async () =>
        {
            RequireNoScan();
            await Initialize();
            await ScanStart(Native.startCaptureSession, settings.StartStopTimeout, "The scan did not start.");
        });

        /// <summary>
        /// Starts a scan in the space of a world map; done with <see cref="ScanStarted"/>, once the device has found
        /// itself there. The library cannot be called off: after a time-out the scan may still start.
        /// </summary>
        /// <param name="worldMapPath">The file that <see cref="StopWithWorldMapAsync"/> told.</param>
        /// <exception cref="NotSupportedException">No LiDAR, or before iOS 17.</exception>
        /// <exception cref="FileNotFoundException">There is no such file.</exception>
        /// <exception cref="TimeoutException">The device is not there, or the file is no world map.</exception>
        public Task ResumeFromWorldMapAsync(string worldMapPath) => Exclusively("resume", async () =>
        {
            RequireNoScan();
            Checks.WorldMapSupport();
            if (!File.Exists(worldMapPath)) throw new FileNotFoundException("There is no world map.", worldMapPath);
            await Initialize();
            byte[] path = NativeText.ToNative(worldMapPath, nameof(worldMapPath));
            await ScanStart(() => Native.startCaptureSessionWithARWorldMap(path), settings.WorldMapTimeout,
                            "The device has not found itself in the world map.");
        });

        /// <summary>Ends the scan; done with <see cref="ScanEnded"/>. The last room can still be saved.</summary>
        /// <exception cref="InvalidOperationException">No scan runs.</exception>
        public Task StopAsync() => Exclusively("stop", async () =>
        {
            RequireScan();
            Native.stopCaptureSession();
            await ScanEnd("The scan did not end.");
        });

        /// <summary>Ends the scan and writes its world map to folder/WorldMap/scan, whose path it answers.</summary>
        /// <exception cref="NotSupportedException">No LiDAR, or before iOS 17.</exception>
        /// <exception cref="IOException">The folder cannot be written in; the scan goes on.</exception>
        /// <exception cref="TimeoutException">There was no map. The scan has not ended; StopAsync ends it.</exception>
        public Task<string> StopWithWorldMapAsync(string folder) => Exclusively("stop", async () =>
        {
            RequireScan();
            Checks.WorldMapSupport();
            string worldMap = Checks.WritableWorldMap(folder);
            Native.stopCaptureSessionWithARWorldMap(NativeText.ToNative(folder.TrimEnd('/') + "/", nameof(folder)));
            await ScanEnd("There was no world map to save; the scan has not ended.");
            return worldMap;
        });

        /// <summary>Takes the library's view down, a scan with it; done with <see cref="ShutDown"/>.</summary>
        public Task ShutDownAsync() => Exclusively("shut down", async () =>
        {
            if (!IsInitialized) return;
            NativeCallbacks.TakeDown(inbox);
            await Until(() => !IsInitialized, "The library did not shut down.");
        });

        /// <summary>Drops updates and coaching until <see cref="ContinueScanning"/>; the phone scans on.</summary>
        public void PauseScanning()
        {
            RequireScan();
            Native.pauseCaptureSessionScanning();
        }

        /// <summary>Ends a pause.</summary>
        public void ContinueScanning()
        {
            RequireScan();
            Native.resumeCaptureSessionScanning();
        }

        /// <summary>iOS 17: closes the current room and starts the next one in the same space.</summary>
        public void BeginNextRoom()
        {
            RequireScan();
            Checks.MultiRoomSupport();
            Native.createNewRoomCaptureSession();
            Tap?.OnRun();
        }

        /// <summary>iOS 17: closes the current room; <see cref="RunNextRoom"/> starts the next one.</summary>
        /// <param name="pausesAR">Whether AR stops too; the next room then lies in another space.</param>
        public void CloseRoom(bool pausesAR = false)
        {
            RequireScan();
            Checks.MultiRoomSupport();
            Native.stopCaptureSessionWithPause(pausesAR);
        }

        /// <summary>iOS 17: starts the next room after <see cref="CloseRoom"/>.</summary>
        public void RunNextRoom()
        {
            RequireScan();
            Checks.MultiRoomSupport();
            Native.runCaptureSession();
            Tap?.OnRun();
        }

        private async Task Initialize()
        {
            Checks.Support();
            Checks.CameraUsage(settings.InfoPlistPath);
            if (NativeCallbacks.IsLeaving)
                await Until(() => !NativeCallbacks.IsLeaving, "The session before did not go down.");
            if (!IsScanning) Options.Apply();
            if (IsInitialized) return;
            Native.initializeVTL();
            await Until(() => IsInitialized, "The library did not start; is there a window?");
        }

        private Task ScanStart(Action start, double seconds, string tooLate)
        {
            inbox.ExpectsScan = true;
            start();
            return waits.Until(() => IsScanning, seconds, tooLate);
        }

        private Task ScanEnd(string tooLate) => Until(() => !IsScanning, tooLate);

        /// <summary>Starts, stops and saves disturb each other: only one is under way at a time.</summary>
        private async Task<T> Exclusively<T>(string what, Func<Task<T>> work)
        {
            RequireAlive();
            if (underWay != null)
                throw new InvalidOperationException("Cannot " + what + " now: a call to " + underWay + " is under way.");
            underWay = what;
            try
            {
                return await work();
            }
            finally
            {
                underWay = null;
            }
        }

        private Task Exclusively(string what, Func<Task> work) => Exclusively(what, async () =>
        {
            await work();
            return true;
        });

        private void RequireScan()
        {
            RequireAlive();
            if (!IsScanning) throw new InvalidOperationException("No scan is running.");
        }

        private void RequireNoScan()
        {
            if (IsScanning) throw new InvalidOperationException("A scan is running.");
        }
    }
}
