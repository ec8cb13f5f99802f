using System;

namespace UnityEditor
{
    public sealed class InitializeOnLoadAttribute : Attribute { }

    public enum PlayModeStateChange
    {
        EnteredEditMode,
        ExitingEditMode,
        EnteredPlayMode,
        ExitingPlayMode,
    }

    [Flags]
    public enum EnterPlayModeOptions
    {
        None = 0,
        DisableDomainReload = 1,
    }

    public static class EditorSettings
    {
        public static bool enterPlayModeOptionsEnabled { get; set; }

        public static EnterPlayModeOptions enterPlayModeOptions { get; set; }
    }

    public static class EditorApplication
    {
        public static event Action<PlayModeStateChange> playModeStateChanged;

        public delegate void CallbackFunction();

        public static CallbackFunction update;

        public static event Action quitting;

        public static bool isPlayingOrWillChangePlaymode { get; set; }

        public static void Change(PlayModeStateChange change) => playModeStateChanged(change);

        public static void Quit() => quitting();
    }

    public static class AssemblyReloadEvents
    {
        public delegate void AssemblyReloadCallback();

        public static event AssemblyReloadCallback beforeAssemblyReload;

        public static void Reload() => beforeAssemblyReload();
    }
}
