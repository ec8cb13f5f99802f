using System.Collections.Generic;

namespace UnityEngine
{
    public class GUILayoutOption { }

    public static class GUILayout
    {
        /// <summary>The button that is pressed; null for none.</summary>
        public static string Pressed { get; set; }

        public static List<string> Labels { get; } = new List<string>();

        public static void Label(string text, params GUILayoutOption[] options) => Labels.Add(text);

        public static bool Button(string text, params GUILayoutOption[] options) => text == Pressed;
    }
}
