using System;

namespace Vantorel
{
    /// <summary>What a session needs to know of its surroundings.</summary>
    public sealed class ScanSettings
    {
        /// <summary>
        /// The app's documents folder, where scans are saved. On an iPhone that is Unity's
        /// Application.persistentDataPath.
        /// </summary>
        public string DocumentsFolder { get; set; } = "";

        /// <summary>
        /// The app's Info.plist, looked into for the camera usage text before a scan starts; null: not looked for.
        /// </summary>
        public string InfoPlistPath { get; set; }

        /// <summary>
        /// Seconds from any beginning, never less than before; called on any thread. Time-outs and recordings are
        /// measured by it. Null: the machine's own clock.
        /// </summary>
        public Func<double> Clock { get; set; }

        /// <summary>Seconds that a start or stop of the library or of a scan may take. Default 10.</summary>
        public double StartStopTimeout { get; set; } = 10;

        /// <summary>Seconds that merging rooms may take. Default 120.</summary>
        public double MergeTimeout { get; set; } = 120;

        /// <summary>Seconds that finding oneself in a world map may take. Default 60.</summary>
        public double WorldMapTimeout { get; set; } = 60;
    }
}
