using System;

namespace Vantorel.Editor
{
    /// <summary>What an iPhone build says of itself. Unity keeps it in the project's settings.</summary>
    [Serializable]
    public sealed class IosBuildSettings
    {
        /// <summary>
        /// What the camera is for, in the words that the person reads; without it iOS ends the app at the first scan. Empty:
        /// the one of Unity's Player settings counts.
        /// </summary>
        public string cameraUsageText = "";

        /// <summary>Needed once screenshots or screen recordings are shared. Empty: left out.</summary>
        public string photoLibraryUsageText = "";

        /// <summary>The documents folder, where scans are saved, shows in the Files app.</summary>
        public bool showsScansInFiles;

        /// <summary>Keeps the app off devices without ARKit. There is no such key for LiDAR.</summary>
        public bool requiresARKit;
    }
}
