using System;
using System.IO;
using Vantorel.Simulation;

namespace Vantorel.Editor
{
    /// <summary>The simulated device of one Play, as the settings have it, moved on by the app's frames.</summary>
    internal sealed class PlayDevice : IDisposable
    {
        /// <summary>In seconds. A frame that took longer was a breakpoint or a pause, not the app's time.</summary>
        private const double LongestFrame = 1;

        private readonly SimulatedDevice device;
        private readonly DeviceSettings settings;
        private readonly PlayPaths paths;
        private readonly Action<string> complain;
        private int nextRoom;

        /// <param name="say">Hears the library's console lines and what the device would show; any thread.</param>
        /// <param name="complain">Hears a sentence for each setting that cannot be met, and of a crash.</param>
        internal PlayDevice(DeviceSettings settings, PlayPaths paths, Action<string> say, Action<string> complain)
        {
            this.settings = settings;
            this.paths = paths;
            this.complain = complain;
            device = new SimulatedDevice(paths.DocumentsFolder);
            SimulatedDevice.SetObserver(seen => say(("Simulated iPhone: " + seen.Name + " ").TrimEnd() + " " + seen.Value));
            Try(() => device.SetOption("ios", settings.iosVersion));
            Try(() => device.SetOption("lidar", settings.hasLidar ? "on" : "off"));
            Try(() => device.SetOption("torch", settings.hasTorch ? "present" : "absent"));
            foreach (var fault in settings.faults) Try(() => device.Fail(fault.call, fault.count, fault.skip));
            HasScans = Try(ShowNextScan);
        }

        /// <summary>Why the device does nothing any more, as after a crash; null while it works.</summary>
        internal string Failure { get; private set; }

        /// <summary>False when there is nothing to show, so that it is not tried again in each frame.</summary>
        private bool HasScans { get; set; }

        /// <summary>One frame of the app. Nothing once a test has made a device of its own.</summary>
        internal void Advance(double frameSeconds)
        {
            if (Failure != null || !device.IsOn) return;
            try
            {
                device.Advance(Math.Min(frameSeconds, LongestFrame) * settings.speed);
            }
            catch (SimulatedDeviceException refusal)
            {
                Failure = refusal.Message;
                complain("The simulated iPhone has stopped until the next Play: " + Failure);
                return;
            }
            if (HasScans && device.State("device.hasNextScan") == "false") HasScans = Try(ShowNextScan);
        }

        public void Dispose() => device.Dispose();

        private void ShowNextScan()
        {
            if (settings.source == ScanSource.Recording) device.PlayRecording(PathOf(settings.recording));
            if (settings.source == ScanSource.Rooms)
                device.ScanRoom(NextRoom(), settings.secondsPerRoom, settings.updatesPerSecond);
        }

        private string NextRoom()
        {
            int count = settings.rooms.Length;
            return count == 0 ? paths.SampleRoom : PathOf(settings.rooms[nextRoom++ % count]);
        }

        private string PathOf(string path) => Path.Combine(paths.ProjectFolder, path);

        private bool Try(Action step)
        {
            try
            {
                step();
                return true;
            }
            catch (Exception refusal) when (refusal is SimulatedDeviceException || refusal is ArgumentException)
            {
                // The latter of a path with characters that no path has, as the quotes of a copied one on Windows.
                complain("The simulated iPhone cannot be set up as Project Settings > Vantorel says: " + refusal.Message);
                return false;
            }
        }
    }
}
