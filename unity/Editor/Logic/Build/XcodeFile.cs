namespace Vantorel.Editor
{
    /// <summary>A file that the target UnityFramework compiles.</summary>
    internal readonly struct XcodeFile
    {
        internal XcodeFile(string path, string flags)
        {
            Path = path;
            Flags = flags;
        }

        /// <summary>From the Xcode project's folder.</summary>
        internal string Path { get; }

        /// <summary>The compiler's; empty for none.</summary>
        internal string Flags { get; }
    }
}
