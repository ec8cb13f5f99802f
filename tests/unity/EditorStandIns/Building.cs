using System;
using System.Reflection;

namespace UnityEditor
{
    public enum BuildTarget
    {
        StandaloneOSX = 2,
        iOS = 9,
    }

    public static class PlayerSettings
    {
        public static class iOS
        {
            public static string targetOSVersionString { get; set; } = "";

            public static string cameraUsageDescription { get; set; } = "";
        }
    }
}

namespace UnityEditor.Build
{
    public sealed class BuildFailedException : Exception
    {
        public BuildFailedException(string message) : base(message) { }
    }

    public interface IOrderedCallback
    {
        int callbackOrder { get; }
    }

    public interface IPreprocessBuildWithReport : IOrderedCallback
    {
        void OnPreprocessBuild(Reporting.BuildReport report);
    }

    public interface IPostprocessBuildWithReport : IOrderedCallback
    {
        void OnPostprocessBuild(Reporting.BuildReport report);
    }
}

namespace UnityEditor.Build.Reporting
{
    public struct BuildSummary
    {
        public BuildTarget platform { get; set; }

        public string outputPath { get; set; }
    }

    public sealed class BuildReport
    {
        public BuildSummary summary { get; set; }
    }
}

namespace UnityEditor.UnityLinker
{
    public sealed class UnityLinkerBuildPipelineData { }

    public interface IUnityLinkerProcessor : Build.IOrderedCallback
    {
        string GenerateAdditionalLinkXmlFile(Build.Reporting.BuildReport report, UnityLinkerBuildPipelineData data);
    }
}

namespace UnityEditor.PackageManager
{
    public sealed class PackageInfo
    {
        /// <summary>Where every assembly's package is.</summary>
        public static string Folder { get; set; }

        public string resolvedPath => Folder;

        public static PackageInfo FindForAssembly(Assembly assembly) => new PackageInfo();
    }
}
