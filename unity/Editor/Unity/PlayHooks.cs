using System;
using System.IO;
using UnityEditor;
using UnityEngine;
using Vantorel.Simulation;

namespace Vantorel.Editor
{
    /// <summary>Hands Unity's events to the <see cref="PlaySwitch"/>, and the app's frames to the device.</summary>
    [InitializeOnLoad]
    internal static class PlayHooks
    {
        private static readonly PlaySwitch Switch = new PlaySwitch(SwitchOn);
        private static int lastFrame;

        static PlayHooks()
        {
            EditorApplication.playModeStateChanged += OnPlayModeChanged;
            EditorApplication.update += OnEditorUpdate;
            AssemblyReloadEvents.beforeAssemblyReload += Switch.OnScriptsUnload;
            EditorApplication.quitting += Switch.OnPlayEnded;
            ForgetOldScripts();
            Switch.OnScriptsLoaded(EditorApplication.isPlayingOrWillChangePlaymode);
        }

        /// <summary>Null outside of Play.</summary>
        internal static PlayDevice Device => Switch.Device;

        private static bool ReloadsScripts => !EditorSettings.enterPlayModeOptionsEnabled ||
            (EditorSettings.enterPlayModeOptions & EnterPlayModeOptions.DisableDomainReload) == 0;

        private static PlayDevice SwitchOn()
        {
            var settings = VantorelSettings.instance.device;
            if (!settings.isUsedInPlay) return null;
            var paths = new PlayPaths
            {
                ProjectFolder = Path.GetDirectoryName(Application.dataPath),
                DocumentsFolder = Application.persistentDataPath,
                SampleRoom = Path.Combine(Package.Folder, "Rooms~", "flat.json"),
            };
            try
            {
                return new PlayDevice(settings, paths, Debug.Log, Debug.LogError);
            }
            catch (TypeLoadException missing)
            {
                Debug.LogError("The desktop library is missing or of another version: " + missing.Message);
            }
            catch (SimulatedDeviceException refusal)
            {
                Debug.LogError(refusal.Message);
            }
            return null;
        }

        private static void ForgetOldScripts()
        {
            try
            {
                SimulatedDevice.Reset();
            }
            catch (TypeLoadException)
            {
                // No library: Play says so when it needs one.
            }
        }

        private static void OnPlayModeChanged(PlayModeStateChange change)
        {
            if (change == PlayModeStateChange.ExitingEditMode) Switch.OnPlayBegins(ReloadsScripts);
            if (change == PlayModeStateChange.EnteredEditMode) Switch.OnPlayEnded();
        }

        /// <summary>The Editor updates more often than the app, and while it is paused.</summary>
        private static void OnEditorUpdate()
        {
            if (Device == null || !Application.isPlaying || Time.frameCount == lastFrame) return;
            lastFrame = Time.frameCount;
            Device.Advance(Time.unscaledDeltaTime);
        }
    }
}
