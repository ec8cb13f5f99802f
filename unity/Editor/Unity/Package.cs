using UnityEditor.PackageManager;

namespace Vantorel.Editor
{
    internal static class Package
    {
        /// <summary>Where this package is installed; empty when its scripts were copied into a project instead.</summary>
        internal static string Folder => PackageInfo.FindForAssembly(typeof(Package).Assembly)?.resolvedPath ?? "";
    }
}
