using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;

namespace Vantorel.Editor
{
    /// <summary>What the plug-in needs in the Xcode project that Unity has written.</summary>
    internal static class IosProject
    {
        /// <summary>Where the sources go in the project's folder; they include each other from where they stand.</summary>
        internal const string Folder = "Vantorel";

        /// <summary>The second keeps numbers in texts the same, digit by digit, as on other machines.</summary>
        private const string CppFlags = "-std=c++20 -ffp-contract=off";

        /// <summary>
        /// None is optional: all are there from iOS 16 on, and what RoomPlan got later is linked weakly name by name.
        /// </summary>
        internal static readonly IReadOnlyList<string> Frameworks = new[]
        {
            "ARKit.framework", "AVFoundation.framework", "QuartzCore.framework", "QuickLook.framework",
            "ReplayKit.framework", "RoomPlan.framework", "SceneKit.framework", "UIKit.framework",
        };

        internal static readonly IReadOnlyList<XcodeSetting> Settings = new[]
        {
            // Apple's headers say of threads what is an error in Swift 6.
            Set(XcodeTarget.Framework, "SWIFT_VERSION", "5.0"),
            // A framework has no bridging header: Swift finds the border's C header through the module map.
            Add("SWIFT_INCLUDE_PATHS", "$(PROJECT_DIR)/" + Folder + "/platform/apple"),
            // For native code of the app's own that includes "vantorel/vantorel.h".
            Add("HEADER_SEARCH_PATHS", "$(PROJECT_DIR)/" + Folder),
            // Where Swift's own libraries are, which a project without Swift does not look for.
            Add("LIBRARY_SEARCH_PATHS", "$(TOOLCHAIN_DIR)/usr/lib/swift/$(PLATFORM_NAME)"),
            Add("LIBRARY_SEARCH_PATHS", "$(SDKROOT)/usr/lib/swift"),
            // The app carries them, a framework must not.
            Set(XcodeTarget.Framework, "ALWAYS_EMBED_SWIFT_STANDARD_LIBRARIES", "NO"),
            Set(XcodeTarget.App, "ALWAYS_EMBED_SWIFT_STANDARD_LIBRARIES", "YES"),
        };

        /// <summary>Headers and the module map are found where they lie. The privacy manifest, which declares nothing, is in no target
        /// either: recent versions of Unity put their own into UnityFramework, and two of them stop Xcode.</summary>
        /// <param name="sources">Paths from the sources' folder, with slashes.</param>
        internal static IEnumerable<XcodeFile> Files(IEnumerable<string> sources)
        {
            return sources.OrderBy(path => path, StringComparer.Ordinal).SelectMany(path => Files(Folder + "/" + path));
        }

        private static IEnumerable<XcodeFile> Files(string path)
        {
            switch (Path.GetExtension(path))
            {
                case ".cpp": return new[] { new XcodeFile(path, CppFlags) };
                case ".swift": return new[] { new XcodeFile(path, "") };
                default: return new XcodeFile[0];
            }
        }

        /// <summary>Texts of the Info.plist by their keys.</summary>
        internal static IEnumerable<KeyValuePair<string, string>> Texts(IosBuildSettings settings)
        {
            var texts = new Dictionary<string, string>
            {
                { "NSCameraUsageDescription", settings.cameraUsageText },
                { "NSPhotoLibraryAddUsageDescription", settings.photoLibraryUsageText },
            };
            return texts.Where(text => !string.IsNullOrWhiteSpace(text.Value));
        }

        /// <summary>Keys of the Info.plist that are true.</summary>
        internal static IEnumerable<string> Switches(IosBuildSettings settings)
        {
            string[] fileSharing = { "UIFileSharingEnabled", "LSSupportsOpeningDocumentsInPlace" };
            return settings.showsScansInFiles ? fileSharing : new string[0];
        }

        /// <summary>What UIRequiredDeviceCapabilities names beside Unity's own.</summary>
        internal static IEnumerable<string> Capabilities(IosBuildSettings settings)
        {
            return settings.requiresARKit ? new[] { "arkit" } : new string[0];
        }

        private static XcodeSetting Set(XcodeTarget target, string name, string value)
        {
            return new XcodeSetting(target, name, value, isAdded: false);
        }

        private static XcodeSetting Add(string name, string value)
        {
            return new XcodeSetting(XcodeTarget.Framework, name, value, isAdded: true);
        }
    }
}
