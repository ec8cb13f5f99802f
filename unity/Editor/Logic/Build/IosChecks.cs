using System.Collections.Generic;
using System.Globalization;
using System.Linq;

namespace Vantorel.Editor
{
    /// <summary>What an iPhone build lacks, found before Unity spends minutes on it: one sentence for each.</summary>
    internal static class IosChecks
    {
        private const int OldestIos = 16;

        private const string NoCameraText = "Say what the camera is used for in Project Settings > Vantorel: " +
            "without it iOS ends the app at the first scan.";

        private const string TooOld = "Set Project Settings > Player > iOS > Target minimum iOS Version to 16.0 or later: " +
            "it is ";

        private const string NoSources = "The package's folder Runtime/Plugins/iOS~ lacks the plug-in's sources: " +
            "install the package as scripts/pack-unity lays it out.";

        private static readonly string[] Parts = { ".cpp", ".swift", ".modulemap" };

        /// <param name="minimumVersion">Of Unity's Player settings, as "16.0".</param>
        /// <param name="playerCameraText">The camera usage text of Unity's Player settings.</param>
        /// <param name="sources">Paths of the plug-in's sources; empty when there are none.</param>
        internal static IEnumerable<string> Problems(IosBuildSettings settings, string minimumVersion,
                                                     string playerCameraText, IReadOnlyCollection<string> sources)
        {
            if (IsBlank(settings.cameraUsageText) && IsBlank(playerCameraText)) yield return NoCameraText;
            if (Major(minimumVersion) < OldestIos) yield return TooOld + "\"" + minimumVersion + "\".";
            if (!Parts.All(part => sources.Any(path => path.EndsWith(part)))) yield return NoSources;
        }

        private static bool IsBlank(string text) => string.IsNullOrWhiteSpace(text);

        /// <summary>0 when the text is no version.</summary>
        private static int Major(string version)
        {
            string number = (version ?? "").Split('.')[0];
            return int.TryParse(number, NumberStyles.None, CultureInfo.InvariantCulture, out int major) ? major : 0;
        }
    }
}
