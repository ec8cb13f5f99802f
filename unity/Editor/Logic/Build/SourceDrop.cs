using System.Collections.Generic;
using System.IO;
using System.Linq;

namespace Vantorel.Editor
{
    /// <summary>The plug-in for the iPhone as sources, in a folder of the package that Unity does not import.</summary>
    internal sealed class SourceDrop
    {
        private readonly string folder;

        /// <param name="packageFolder">Where the package is installed.</param>
        internal SourceDrop(string packageFolder) { folder = Path.Combine(packageFolder, "Runtime", "Plugins", "iOS~"); }

        /// <summary>Paths from the folder, with slashes; none when there is no folder.</summary>
        internal IReadOnlyCollection<string> List()
        {
            if (!Directory.Exists(folder)) return new string[0];
            return Directory.GetFiles(folder, "*", SearchOption.AllDirectories)
                .Select(path => path.Substring(folder.Length + 1).Replace('\\', '/')).ToArray();
        }

        /// <summary>Makes the target folder anew.</summary>
        internal void CopyTo(string target)
        {
            if (Directory.Exists(target)) Directory.Delete(target, true);
            foreach (string path in List())
            {
                string copy = Path.Combine(target, path);
                Directory.CreateDirectory(Path.GetDirectoryName(copy));
                File.Copy(Path.Combine(folder, path), copy);
            }
        }
    }
}
