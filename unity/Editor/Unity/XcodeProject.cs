#if UNITY_IOS
using System.IO;
using UnityEditor.iOS.Xcode;

namespace Vantorel.Editor
{
    /// <summary>Writes what <see cref="IosProject"/> names into an Xcode project; a second time changes nothing.</summary>
    internal static class XcodeProject
    {
        internal static void Complete(string folder, SourceDrop drop, IosBuildSettings settings)
        {
            drop.CopyTo(Path.Combine(folder, IosProject.Folder));
            CompleteProject(PBXProject.GetPBXProjectPath(folder), drop);
            CompleteInfo(Path.Combine(folder, "Info.plist"), settings);
        }

        private static void CompleteProject(string path, SourceDrop drop)
        {
            var project = new PBXProject();
            project.ReadFromFile(path);
            string app = project.GetUnityMainTargetGuid(), framework = project.GetUnityFrameworkTargetGuid();
            foreach (var file in IosProject.Files(drop.List())) Add(project, framework, file);
            foreach (string name in IosProject.Frameworks) project.AddFrameworkToProject(framework, name, false);
            foreach (var setting in IosProject.Settings)
                Set(project, setting.Target == XcodeTarget.App ? app : framework, setting);
            project.WriteToFile(path);
        }

        private static void Add(PBXProject project, string target, XcodeFile file)
        {
            if (project.ContainsFileByProjectPath(file.Path)) return;
            string guid = project.AddFile(file.Path, file.Path, PBXSourceTree.Source);
            project.AddFileToBuildWithFlags(target, guid, file.Flags);
        }

        private static void Set(PBXProject project, string target, XcodeSetting setting)
        {
            if (setting.IsAdded) project.AddBuildProperty(target, setting.Name, setting.Value);
            else project.SetBuildProperty(target, setting.Name, setting.Value);
        }

        private static void CompleteInfo(string path, IosBuildSettings settings)
        {
            var info = new PlistDocument();
            info.ReadFromFile(path);
            foreach (var text in IosProject.Texts(settings)) info.root.SetString(text.Key, text.Value);
            foreach (string key in IosProject.Switches(settings)) info.root.SetBoolean(key, true);
            foreach (string name in IosProject.Capabilities(settings)) Require(info.root, name);
            info.WriteToFile(path);
        }

        private static void Require(PlistElementDict root, string capability)
        {
            const string Key = "UIRequiredDeviceCapabilities";
            var names = root.values.TryGetValue(Key, out var there) ? there.AsArray() : root.CreateArray(Key);
            foreach (var name in names.values)
                if (name.AsString() == capability) return;
            names.AddString(capability);
        }
    }
}
#endif
