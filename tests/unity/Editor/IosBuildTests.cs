using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using NUnit.Framework;
using UnityEditor;
using UnityEditor.Build;
using UnityEditor.Build.Reporting;
using UnityEditor.PackageManager;
using Vantorel.Editor;

namespace Vantorel.Tests
{
    [TestFixture]
    public class IosBuildTests
    {
        private static readonly string[] Drop = { "base/Uuid.cpp", "base/Uuid.h", "platform/apple/Swift/Room.swift",
            "platform/apple/module.modulemap", "PrivacyInfo.xcprivacy", "README.txt" };

        private IosBuildSettings settings;
        private string folder;

        [SetUp]
        public void MakeProject()
        {
            folder = Path.Combine(Path.GetTempPath(), "vantorel-" + Guid.NewGuid());
            PackageInfo.Folder = Path.Combine(folder, "package");
            foreach (string path in Drop) Write("package/Runtime/Plugins/iOS~/" + path, path);
            Write("Unity-iPhone.xcodeproj/project.pbxproj", "");
            Write("Info.plist", "CFBundleName=App\nUIRequiredDeviceCapabilities=,arm64");
            settings = VantorelSettings.instance.iosBuild = new IosBuildSettings { cameraUsageText = "Scans rooms." };
            PlayerSettings.iOS.targetOSVersionString = "16.0";
            PlayerSettings.iOS.cameraUsageDescription = "";
        }

        [TearDown]
        public void Remove() => Directory.Delete(folder, true);

        [Test]
        public void AProjectGetsSourcesFrameworksSettingsAndTexts()
        {
            settings.showsScansInFiles = settings.requiresARKit = true;
            Build();
            string[] project = Lines("Unity-iPhone.xcodeproj/project.pbxproj");
            CollectionAssert.IsSubsetOf(new[]
            {
                "framework compiles Vantorel/base/Uuid.cpp -std=c++20 -ffp-contract=off",
                "framework compiles Vantorel/platform/apple/Swift/Room.swift ",
                "framework links RoomPlan.framework",
                "framework SWIFT_VERSION=5.0",
                "framework SWIFT_INCLUDE_PATHS+=$(PROJECT_DIR)/Vantorel/platform/apple",
                "framework ALWAYS_EMBED_SWIFT_STANDARD_LIBRARIES=NO",
                "app ALWAYS_EMBED_SWIFT_STANDARD_LIBRARIES=YES",
            }, project);
            Assert.AreEqual(2, project.Count(line => line.StartsWith("file ")), "the others are in no target");
            foreach (string path in Drop) Assert.AreEqual(path, File.ReadAllText(Path.Combine(folder, "Vantorel", path)));
            CollectionAssert.AreEquivalent(new[]
            {
                "CFBundleName=App", "LSSupportsOpeningDocumentsInPlace=true", "NSCameraUsageDescription=Scans rooms.",
                "UIFileSharingEnabled=true", "UIRequiredDeviceCapabilities=,arm64,arkit",
            }, Lines("Info.plist"));
        }

        [Test]
        public void AnAppendedBuildChangesNothingTwiceAndDropsWhatIsGone()
        {
            settings.requiresARKit = true;
            Build();
            string[] project = Lines("Unity-iPhone.xcodeproj/project.pbxproj"), info = Lines("Info.plist");
            Write("Vantorel/base/Old.cpp", "of an earlier version");
            Build();
            CollectionAssert.AreEqual(project, Lines("Unity-iPhone.xcodeproj/project.pbxproj"));
            CollectionAssert.AreEqual(info, Lines("Info.plist"));
            Assert.IsFalse(File.Exists(Path.Combine(folder, "Vantorel/base/Old.cpp")));
        }

        [Test]
        public void EachThingMissingStopsTheBuildWithASentence()
        {
            settings.cameraUsageText = " ";
            foreach (string version in new[] { "15.9", "", "old" })
            {
                PlayerSettings.iOS.targetOSVersionString = version;
                StringAssert.Contains("16.0 or later", Refusal()[1]);
            }
            File.Delete(Path.Combine(folder, "package/Runtime/Plugins/iOS~/platform/apple/module.modulemap"));
            string[] sentences = Refusal();
            Assert.AreEqual(3, sentences.Length);
            StringAssert.Contains("camera", sentences[0]);
            StringAssert.Contains("Plugins/iOS~", sentences[2]);

            PlayerSettings.iOS.targetOSVersionString = "17";
            PlayerSettings.iOS.cameraUsageDescription = "Of the player";
            Assert.AreEqual(1, Refusal().Length);
            Directory.Delete(Path.Combine(folder, "package/Runtime"), true);
            Assert.AreEqual(1, Refusal().Length);
        }

        [Test]
        public void OtherPlatformsAreLeftAlone()
        {
            settings.cameraUsageText = "";
            Build(BuildTarget.StandaloneOSX);
            Assert.IsFalse(Directory.Exists(Path.Combine(folder, "Vantorel")));
        }

        [Test]
        public void ThePackageHasWhatTheEditorLooksFor()
        {
            Directory.Delete(PackageInfo.Folder, true);
            Run(Path.Combine(TestFiles.Root, "scripts/pack-unity"), PackageInfo.Folder);
            string target = Path.Combine(PackageInfo.Folder, "Runtime/Plugins/iOS~");
            Assert.IsTrue(File.Exists(Path.Combine(Package.Folder, "Rooms~", "flat.json")));
            string kept = new KeptCode().GenerateAdditionalLinkXmlFile(null, null);
            StringAssert.Contains("assembly fullname=\"Vantorel\"", File.ReadAllText(kept));
            Build();
            string[] project = Lines("Unity-iPhone.xcodeproj/project.pbxproj");
            foreach (string file in Directory.GetFiles(target, "*", SearchOption.AllDirectories))
            {
                string path = "Vantorel/" + file.Substring(target.Length + 1);
                bool isBuilt = path.EndsWith(".cpp") || path.EndsWith(".swift");
                Assert.AreEqual(isBuilt, project.Contains("file " + path), path);
            }
            string map = IosProject.Settings.Single(setting => setting.Name == "SWIFT_INCLUDE_PATHS").Value;
            Assert.IsTrue(File.Exists(Path.Combine(map.Replace("$(PROJECT_DIR)", folder), "module.modulemap")));
        }

        private static void Run(string script, string argument)
        {
            var start = new System.Diagnostics.ProcessStartInfo(script, argument)
            {
                UseShellExecute = false, RedirectStandardError = true,
            };
            using (var process = System.Diagnostics.Process.Start(start))
            {
                string said = process.StandardError.ReadToEnd();
                process.WaitForExit();
                Assert.AreEqual(0, process.ExitCode, said);
            }
        }

        private void Build(BuildTarget platform = BuildTarget.iOS)
        {
            var report = new BuildReport { summary = new BuildSummary { platform = platform, outputPath = folder } };
            var build = new IosBuild();
            build.OnPreprocessBuild(report);
            build.OnPostprocessBuild(report);
        }

        private string[] Refusal() => Assert.Throws<BuildFailedException>(() => Build()).Message.Split('\n');

        private string[] Lines(string path) => File.ReadAllLines(Path.Combine(folder, path));

        private void Write(string path, string text)
        {
            path = Path.Combine(folder, path);
            Directory.CreateDirectory(Path.GetDirectoryName(path));
            File.WriteAllText(path, text);
        }
    }
}
