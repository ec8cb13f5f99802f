using System;
using System.Diagnostics;
using System.Threading;
using System.Threading.Tasks;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>
    /// The library in C#. There is one at a time. Everything here is for the thread that made it, in Unity the main
    /// thread; events are raised and tasks completed inside <see cref="Tick"/> alone, or cancelled by
    /// <see cref="Dispose"/>.
    /// </summary>
    public sealed partial class ScanSession : IDisposable
    {
        private readonly ScanSettings settings;
        private readonly Inbox inbox = new Inbox();
        private readonly Waits waits;      // looked at after each event
        private readonly Waits fileWaits;  // looked at once a Tick
        private readonly int thread = Thread.CurrentThread.ManagedThreadId;
        private bool isDisposed;

        /// <exception cref="InvalidOperationException">There is a session already.</exception>
        public ScanSession(ScanSettings settings = null)
        {
            this.settings = settings ?? new ScanSettings();
            Clock = this.settings.Clock ?? MachineClock();
            waits = new Waits(Clock);
            fileWaits = new Waits(Clock);
            inbox.PowerLost = Abandon;
            NativeCallbacks.Attach(inbox);
            Options = new ScanOptions(() => IsInitialized || underWay != null);
            Media = new ScanMedia(this);
        }

        /// <summary>"Vantorel 1.3.0"</summary>
        public static string LibraryVersion => NativeText.Take(Native.getVantorelVersion());

        /// <summary>Whether the device can scan rooms (LiDAR); false where the library is missing, as on Android.</summary>
        public static bool IsSupported
        {
            get
            {
                try
                {
                    return Native.VantorelSupport();
                }
                catch (DllNotFoundException)
                {
                    return false;
                }
            }
        }

        /// <summary>Whether it can scan several rooms in one space and merge them (LiDAR and iOS 17).</summary>
        public static bool IsMultiRoomSupported => Native.MultiRoomSupport();

        /// <summary>Whether it can save and load world maps (LiDAR and iOS 17).</summary>
        public static bool IsWorldMapSupported => Native.ARWorldMapSupport();

        /// <summary>The library's switches.</summary>
        public ScanOptions Options { get; }

        /// <summary>Screenshots, screen recordings, previews, sharing and the torch.</summary>
        public ScanMedia Media { get; }

        /// <summary>Whether the library's view is set up.</summary>
        public bool IsInitialized { get; private set; }

        /// <summary>From <see cref="ScanStarted"/> to <see cref="ScanEnded"/> or <see cref="ShutDown"/>.</summary>
        public bool IsScanning { get; private set; }

        /// <summary>The library's view is there.</summary>
        public event Action Initialized;

        /// <summary>The library's view is gone, and a scan with it, without a ScanEnded.</summary>
        public event Action ShutDown;

        /// <summary>A scan runs.</summary>
        public event Action ScanStarted;

        /// <summary>The scan was stopped. <see cref="Room"/> stays and can still be saved.</summary>
        public event Action ScanEnded;

        /// <summary>
        /// <see cref="Room"/> is new. Updates that came one directly after the other since the last Tick are one event.
        /// </summary>
        public event Action RoomUpdated;

        /// <summary>What the phone asks of the person who scans.</summary>
        public event Action<Coaching> InstructionReceived;

        internal Func<double> Clock { get; }

        internal ISessionTap Tap
        {
            get => inbox.Tap;
            set => inbox.Tap = value;
        }

        /// <summary>
        /// Raises the events of all that came since the last Tick, in order, and completes tasks. Call it once a frame.
        /// What happens in answer to an event comes with the next Tick. What a handler throws leaves Tick; the events
        /// behind come with the next one.
        /// </summary>
        public void Tick()
        {
            RequireThread();
            for (int left = inbox.Count; left > 0 && inbox.TryTake(out var next); --left)
            {
                try
                {
                    Deliver(next);
                }
                finally
                {
                    waits.Check();
                }
            }
            waits.Check();
            fileWaits.Check();
        }

        /// <summary>
        /// Ends a scan, takes the library down and cancels the tasks that wait. No event comes any more.
        /// </summary>
        public void Dispose()
        {
            if (isDisposed) return;
            RequireThread();
            NativeCallbacks.Detach(inbox);
            Abandon();
        }

        private void Abandon()
        {
            isDisposed = true;
            IsScanning = IsInitialized = false;
            inbox.Close();
            waits.Cancel();
            fileWaits.Cancel();
        }

        private void Deliver(SessionEvent delivered)
        {
            if (delivered.Failure != null)
                throw new InvalidOperationException("A callback failed; see within.", delivered.Failure);
            if (delivered.Word != null) InstructionReceived?.Invoke(new Coaching(delivered.Word));
            else Deliver(delivered.Native);
        }

        private void Deliver(NativeEvent what)
        {
            switch (what)
            {
                case NativeEvent.DidStart:
                    IsInitialized = true;
                    Initialized?.Invoke();
                    break;
                case NativeEvent.DidEnd:
                    IsInitialized = IsScanning = false;
                    ShutDown?.Invoke();
                    break;
                case NativeEvent.CaptureSessionDidStart:
                    if (IsScanning) break;  // a world map's, that outlived its time-out
                    IsScanning = true;
                    ScanStarted?.Invoke();
                    break;
                case NativeEvent.CaptureSessionDidEnd:
                    if (!IsScanning) break;  // likewise
                    IsScanning = false;
                    ScanEnded?.Invoke();
                    break;
                case NativeEvent.CaptureSessionDidUpdate:
                    RoomUpdated?.Invoke();
                    break;
            }
        }

        private static Func<double> MachineClock()
        {
            var watch = Stopwatch.StartNew();
            return () => watch.Elapsed.TotalSeconds;
        }

        internal Task Until(Func<bool> holds, string tooLate) => waits.Until(holds, settings.StartStopTimeout, tooLate);

        internal void RequireAlive()
        {
            RequireThread();
            if (isDisposed) throw new ObjectDisposedException(nameof(ScanSession));
        }

        private void RequireThread()
        {
            if (Thread.CurrentThread.ManagedThreadId != thread)
                throw new InvalidOperationException("A ScanSession belongs to the thread that made it.");
        }
    }
}
