using System;

namespace Vantorel.Interop
{
    /// <summary>Hears what the library calls back. Any thread; what a method throws comes back to OnFailure.</summary>
    internal interface INativeListener
    {
        /// <summary>
        /// Whether it has asked for a scan and the library has not ended since; else it hears nothing of one.
        /// </summary>
        bool ExpectsScan { get; }

        void OnEvent(NativeEvent what);

        /// <summary>The text is valid during the call only; the caller frees it.</summary>
        void OnInstruction(IntPtr word);

        /// <summary>The text is valid during the call only; the caller frees it.</summary>
        void OnSnapshot(IntPtr room);

        /// <summary>Must not throw.</summary>
        void OnFailure(Exception failure);

        /// <summary>The simulated device is switched off: the library knows nothing any more. Main thread.</summary>
        void OnPowerLost();
    }
}
