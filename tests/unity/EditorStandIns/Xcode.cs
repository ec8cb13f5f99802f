using System.Collections.Generic;
using System.IO;
using System.Linq;

namespace UnityEditor.iOS.Xcode
{
    public enum PBXSourceTree
    {
        Absolute,
        Source,
    }

    /// <summary>Its file is what it was told, a line each; twice the same is one line, as in Unity's.</summary>
    public sealed class PBXProject
    {
        private List<string> lines = new List<string>();

        public static string GetPBXProjectPath(string folder)
        {
            return Path.Combine(folder, "Unity-iPhone.xcodeproj", "project.pbxproj");
        }

        public void ReadFromFile(string path) => lines = File.ReadAllLines(path).ToList();

        public void WriteToFile(string path) => File.WriteAllLines(path, lines.ToArray());

        public string GetUnityMainTargetGuid() => "app";

        public string GetUnityFrameworkTargetGuid() => "framework";

        public bool ContainsFileByProjectPath(string path) => lines.Contains("file " + path);

        public string AddFile(string path, string projectPath, PBXSourceTree tree)
        {
            Add("file " + projectPath);
            return projectPath;
        }

        public void AddFileToBuildWithFlags(string target, string guid, string flags)
        {
            Add(target + " compiles " + guid + " " + flags);
        }

        public void AddFrameworkToProject(string target, string framework, bool weak)
        {
            Add(target + (weak ? " perhaps " : " ") + "links " + framework);
        }

        public void SetBuildProperty(string target, string name, string value) => Add(target + " " + name + "=" + value);

        public void AddBuildProperty(string target, string name, string value) => Add(target + " " + name + "+=" + value);

        private void Add(string line)
        {
            if (!lines.Contains(line)) lines.Add(line);
        }
    }

    public class PlistElement
    {
        public string AsString() => ((PlistElementString)this).value;

        public PlistElementArray AsArray() => (PlistElementArray)this;
    }

    public sealed class PlistElementString : PlistElement
    {
        public string value;

        public PlistElementString(string text) { value = text; }
    }

    public sealed class PlistElementArray : PlistElement
    {
        public List<PlistElement> values = new List<PlistElement>();

        public void AddString(string text) => values.Add(new PlistElementString(text));
    }

    public sealed class PlistElementDict : PlistElement
    {
        private readonly SortedDictionary<string, PlistElement> entries = new SortedDictionary<string, PlistElement>();

        public IDictionary<string, PlistElement> values => entries;

        public void SetString(string key, string text) => entries[key] = new PlistElementString(text);

        public void SetBoolean(string key, bool value) => entries[key] = new PlistElementString(value ? "true" : "false");

        public PlistElementArray CreateArray(string key)
        {
            var array = new PlistElementArray();
            entries[key] = array;
            return array;
        }
    }

    /// <summary>Its file has a line for each key: the text, or the texts of an array behind commas.</summary>
    public sealed class PlistDocument
    {
        public PlistElementDict root { get; } = new PlistElementDict();

        public void ReadFromFile(string path)
        {
            foreach (string[] line in File.ReadAllLines(path).Select(line => line.Split('=')))
                if (line[1].StartsWith(",")) ReadArray(line[0], line[1].Substring(1).Split(','));
                else root.SetString(line[0], line[1]);
        }

        public void WriteToFile(string path)
        {
            File.WriteAllLines(path, root.values.Select(entry => entry.Key + "=" + Text(entry.Value)).ToArray());
        }

        private void ReadArray(string key, string[] texts)
        {
            var array = root.CreateArray(key);
            foreach (string text in texts) array.AddString(text);
        }

        private static string Text(PlistElement element)
        {
            var array = element as PlistElementArray;
            return array == null ? element.AsString() : string.Concat(array.values.Select(value => "," + value.AsString()));
        }
    }
}
