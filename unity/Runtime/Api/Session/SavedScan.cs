using System.IO;

namespace Vantorel
{
    /// <summary>The files of one saved scan or merge. Paths are absolute when the documents folder's is.</summary>
    public sealed class SavedScan
    {
        internal SavedScan(string folder) { Folder = folder; }

        public string Folder { get; }

        /// <summary>The room or structure as JSON; holds null when nothing had been seen.</summary>
        public string JsonPath => Path.Combine(Folder, "scan.json");

        /// <summary>The model. Absent when nothing had been seen.</summary>
        public string ModelPath => Path.Combine(Folder, "scan.usdz");

        /// <summary>The last file of a merge; a single room has none.</summary>
        public string MetadataPath => Path.Combine(Folder, "scan.plist");
    }
}
