using UnityEditor;
using UnityEngine;

namespace Vantorel.Editor
{
    internal static class VantorelSettingsPage
    {
        [SettingsProvider]
        private static SettingsProvider Create()
        {
            return new SettingsProvider("Project/Vantorel", SettingsScope.Project) { guiHandler = Draw };
        }

        private static void Draw(string search)
        {
            // Unity marks new singletons as not editable, and would draw them greyed out.
            VantorelSettings.instance.hideFlags &= ~HideFlags.NotEditable;
            var settings = new SerializedObject(VantorelSettings.instance);
            EditorGUILayout.PropertyField(settings.FindProperty(nameof(VantorelSettings.device)), true);
            EditorGUILayout.HelpBox("What the phone is counts from the next Play on. Paths begin at the project's folder.", MessageType.Info);
            EditorGUILayout.PropertyField(settings.FindProperty(nameof(VantorelSettings.iosBuild)), true);
            if (settings.ApplyModifiedProperties()) VantorelSettings.instance.Save();
        }
    }
}
