namespace Vantorel.Editor
{
    internal enum XcodeTarget
    {
        /// <summary>Unity-iPhone.</summary>
        App,

        /// <summary>UnityFramework, which holds all plug-ins.</summary>
        Framework,
    }
}
