using System;

namespace Vantorel.Editor
{
    /// <summary>What the simulated iPhone of Play is and sees. Unity keeps it in the project's settings.</summary>
    [Serializable]
    public sealed class DeviceSettings
    {
        /// <summary>Off: Play leaves the device to whoever makes one.</summary>
        public bool isUsedInPlay = true;

        public ScanSource source = ScanSource.Rooms;

        /// <summary>
        /// Rooms that the runs of a scan see in turn, beginning again after the last; paths from the project's folder.
        /// None: the flat that comes with the package.
        /// </summary>
        public string[] rooms = new string[0];

        /// <summary>How long a room takes to be scanned.</summary>
        public double secondsPerRoom = 20;

        public double updatesPerSecond = 10;

        /// <summary>A path from the project's folder.</summary>
        public string recording = "";

        /// <summary>16.0 or later.</summary>
        public string iosVersion = "18.0";

        public bool hasLidar = true;

        public bool hasTorch = true;

        /// <summary>Seconds of the device in a second of the app.</summary>
        public double speed = 1;

        public DeviceFault[] faults = new DeviceFault[0];
    }
}
