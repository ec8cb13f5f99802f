using System;
using System.Collections.Generic;
using UnityEngine;

namespace UnityEditor
{
    public sealed class CustomEditor : Attribute
    {
        public CustomEditor(Type inspected) { }
    }

    public class Editor : ScriptableObject
    {
        public UnityEngine.Object target { get; set; }

        public virtual bool RequiresConstantRepaint() => false;

        public virtual void OnInspectorGUI() { }

        public bool DrawDefaultInspector() => false;
    }

    public enum MessageType
    {
        None,
        Info,
        Warning,
        Error,
    }

    /// <summary>Keeps what was drawn.</summary>
    public static class EditorGUILayout
    {
        public static List<string> Texts { get; } = new List<string>();

        public static void LabelField(string label, string text) => Texts.Add(label + ": " + text);

        public static void HelpBox(string text, MessageType type) => Texts.Add(type + ": " + text);

        public static Rect GetControlRect(bool hasLabel, float height, params GUILayoutOption[] options)
        {
            return new Rect { x = 10, y = 100, width = 300, height = height };
        }

        public static bool PropertyField(SerializedProperty property, bool includesChildren) => true;
    }

    public static class Handles
    {
        public static Color color { get; set; }

        public static List<Vector3[]> Lines { get; } = new List<Vector3[]>();

        public static void DrawLine(Vector3 from, Vector3 to) => Lines.Add(new[] { from, to });
    }
}
