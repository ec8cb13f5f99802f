using System.IO;

namespace Vantorel
{
    /// <summary>
    /// A file that somebody else writes, and nobody says when it is done: it counts as complete when two looks find
    /// it equally long and not empty.
    /// </summary>
    internal sealed class GrownFile
    {
        private readonly string path;
        private long lastLength;

        internal GrownFile(string path) { this.path = path; }

        internal bool IsComplete()
        {
            var file = new FileInfo(path);
            long length = file.Exists ? file.Length : 0;
            bool isComplete = length > 0 && length == lastLength;
            lastLength = length;
            return isComplete;
        }
    }
}
