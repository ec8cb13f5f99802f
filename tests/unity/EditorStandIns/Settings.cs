using System;
using UnityEngine;

namespace UnityEditor
{
    public sealed class FilePathAttribute : Attribute
    {
        public FilePathAttribute(string path, Location location) { }

        public enum Location
        {
            PreferencesFolder,
            ProjectFolder,
        }
    }

    public class ScriptableSingleton<T> : ScriptableObject where T : ScriptableObject, new()
    {
        public static T instance { get; } = new T();

        protected void Save(bool asText) { }
    }

    public sealed class SerializedProperty { }

    public sealed class SerializedObject
    {
        public SerializedObject(UnityEngine.Object target) { }

        public SerializedProperty FindProperty(string name) => new SerializedProperty();

        public bool ApplyModifiedProperties() => false;
    }

    public enum SettingsScope
    {
        User,
        Project,
    }

    public sealed class SettingsProviderAttribute : Attribute { }

    public class SettingsProvider
    {
        public SettingsProvider(string path, SettingsScope scope) { }

        public Action<string> guiHandler { get; set; }
    }
}
