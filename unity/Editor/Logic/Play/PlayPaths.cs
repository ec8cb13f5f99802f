namespace Vantorel.Editor
{
    /// <summary>Where the device of Play finds and leaves its files.</summary>
    internal sealed class PlayPaths
    {
        /// <summary>Where the settings' paths begin.</summary>
        internal string ProjectFolder { get; set; }

        /// <summary>Where scans are saved.</summary>
        internal string DocumentsFolder { get; set; }

        /// <summary>What is scanned when the settings name no room.</summary>
        internal string SampleRoom { get; set; }
    }
}
