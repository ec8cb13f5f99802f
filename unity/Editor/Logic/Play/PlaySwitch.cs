using System;

namespace Vantorel.Editor
{
    /// <summary>
    /// When the device of Play is on: from before the first Awake until all objects are destroyed, or until Unity throws
    /// the scripts away, whichever comes first; no callback may outlive its scripts.
    /// </summary>
    internal sealed class PlaySwitch
    {
        private readonly Func<PlayDevice> switchOn;

        /// <param name="switchOn">May answer null: then there is no device in this Play.</param>
        internal PlaySwitch(Func<PlayDevice> switchOn) { this.switchOn = switchOn; }

        /// <summary>Null outside of Play.</summary>
        internal PlayDevice Device { get; private set; }

        /// <param name="isPlaying">Or about to play.</param>
        internal void OnScriptsLoaded(bool isPlaying)
        {
            if (isPlaying) SwitchOn();
        }

        /// <param name="reloadsScripts">Then the device is switched on behind that, by OnScriptsLoaded.</param>
        internal void OnPlayBegins(bool reloadsScripts)
        {
            if (!reloadsScripts) SwitchOn();
        }

        internal void OnScriptsUnload() => SwitchOff();

        internal void OnPlayEnded() => SwitchOff();

        private void SwitchOn() => Device = switchOn();

        private void SwitchOff()
        {
            Device?.Dispose();
            Device = null;
        }
    }
}
