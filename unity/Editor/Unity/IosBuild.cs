using System.Linq;
using UnityEditor;
using UnityEditor.Build;
using UnityEditor.Build.Reporting;

namespace Vantorel.Editor
{
    /// <summary>Stops an iPhone build that lacks something; after one, puts the plug-in into the Xcode project.</summary>
    internal sealed class IosBuild : IPreprocessBuildWithReport, IPostprocessBuildWithReport
    {
        public int callbackOrder => 0;

        private static SourceDrop Drop => new SourceDrop(Package.Folder);

        public void OnPreprocessBuild(BuildReport report)
        {
            if (report.summary.platform != BuildTarget.iOS) return;
            StopWithoutIos();
            var problems = IosChecks.Problems(VantorelSettings.instance.iosBuild, PlayerSettings.iOS.targetOSVersionString,
                                              PlayerSettings.iOS.cameraUsageDescription, Drop.List()).ToArray();
            if (problems.Length > 0) throw new BuildFailedException(string.Join("\n", problems));
        }

        public void OnPostprocessBuild(BuildReport report)
        {
#if UNITY_IOS
            if (report.summary.platform == BuildTarget.iOS)
                XcodeProject.Complete(report.summary.outputPath, Drop, VantorelSettings.instance.iosBuild);
#endif
        }

        /// <summary>A build script can build for a platform whose Editor scripts are not loaded.</summary>
        private static void StopWithoutIos()
        {
#if !UNITY_IOS
            throw new BuildFailedException("Switch the platform to iOS before the build, in batch mode with " +
                "-buildTarget iOS: the scripts that complete the Xcode project are not loaded.");
#endif
        }
    }
}
