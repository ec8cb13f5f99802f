using System;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>
    /// The library's switches. A new session begins with their defaults; a change counts from the next start of a scan
    /// on.
    /// </summary>
    public sealed class ScanOptions
    {
        private readonly Func<bool> isUp;
        private bool usesOwnARSession;

        internal ScanOptions(Func<bool> isUp) { this.isUp = isUp; }

        /// <summary>
        /// iOS 17: the app owns and renders the AR session that <see cref="SetARSession"/> hands over; the library
        /// brings no view of its own. Default false.
        /// </summary>
        /// <exception cref="InvalidOperationException">The library is up: it would be taken down in another way than
        /// it was set up, which stops the app.</exception>
        public bool UsesOwnARSession
        {
            get => usesOwnARSession;
            set
            {
                if (isUp()) throw new InvalidOperationException("Choose the AR session before the library is started.");
                usesOwnARSession = value;
            }
        }

        /// <summary>Shows RoomPlan's own scan view instead of the plain camera. Default false.</summary>
        public bool ShowsPlatformScanView { get; set; }

        /// <summary>RoomPlan's scan view shows its miniature model. Default true.</summary>
        public bool ShowsMiniatureModel { get; set; } = true;

        /// <summary>RoomPlan's scan view shows its coaching overlay. Default true.</summary>
        public bool ShowsCoachingOverlay { get; set; } = true;

        /// <summary>Coaching words come to <see cref="ScanSession.InstructionReceived"/>. Default true.</summary>
        public bool ForwardsCoaching { get; set; } = true;

        /// <summary>
        /// Hands over the app's ARSession, a pointer to the Objective-C object, which the library retains.
        /// </summary>
        public void SetARSession(IntPtr arSession) => Native.setVantorelXRSession(arSession);

        /// <summary>
        /// Only before a start: a stop or dispose that is still to come reads the same switches, and has to find them
        /// as its start did.
        /// </summary>
        internal void Apply()
        {
            Native.isVTLCustomXREnabled(UsesOwnARSession);
            Native.isVTLDefaultScanEnabled(ShowsPlatformScanView);
            Native.isVTLDefaultMiniatureModelEnabled(ShowsMiniatureModel);
            Native.isVTLCoachingEnabled(ShowsCoachingOverlay);
            Native.isVTLInstructionEnabled(ForwardsCoaching);
        }
    }
}
