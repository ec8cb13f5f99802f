using System;
using System.Collections.Generic;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>
    /// Takes the callbacks on the threads where they come and keeps them, in order, for the main thread. Updates that
    /// come one directly after the other are one event, and only the newest room stays.
    /// </summary>
    internal sealed class Inbox : INativeListener
    {
        private readonly object gate = new object();
        private readonly Queue<SessionEvent> events = new Queue<SessionEvent>();
        private readonly LatestText latest = new LatestText();
        private bool endsWithUpdate;
        private bool isClosed;
        private volatile bool expectsScan;

        /// <summary>Called when the simulated device loses its power. Main thread.</summary>
        internal Action PowerLost;

        /// <summary>Hears everything at once, on the thread where it comes; or null.</summary>
        internal volatile ISessionTap Tap;

        public bool ExpectsScan
        {
            get => expectsScan;
            set => expectsScan = value;
        }

        internal int Count
        {
            get
            {
                lock (gate) return events.Count;
            }
        }

        /// <summary>How many room texts came so far.</summary>
        internal int RoomNumber
        {
            get
            {
                lock (gate) return latest.Number;
            }
        }

        /// <summary>What `read` makes of the newest room text; null before the first.</summary>
        internal T Read<T>(Func<ArraySegment<byte>, T> read) where T : class
        {
            lock (gate) return latest.Number == 0 ? null : read(latest.Bytes);
        }

        internal bool TryTake(out SessionEvent taken)
        {
            lock (gate)
            {
                taken = default(SessionEvent);
                if (events.Count == 0) return false;
                taken = events.Dequeue();
                endsWithUpdate &= events.Count > 0;
                return true;
            }
        }

        internal void Close()
        {
            lock (gate)
            {
                isClosed = true;
                events.Clear();
            }
        }

        public void OnEvent(NativeEvent what)
        {
            if (what == NativeEvent.DidEnd) ExpectsScan = false;
            bool isUpdate = what == NativeEvent.CaptureSessionDidUpdate;
            lock (gate)
            {
                if (isUpdate && endsWithUpdate) return;
                Add(new SessionEvent(what));
                endsWithUpdate = isUpdate;
            }
            if (what == NativeEvent.CaptureSessionDidStart) Tap?.OnRun();
        }

        public void OnInstruction(IntPtr word)
        {
            string text = NativeText.Copy(word);
            lock (gate)
            {
                Add(new SessionEvent(text));
                endsWithUpdate = false;
            }
            Tap?.OnInstruction(text);
        }

        public void OnSnapshot(IntPtr room)
        {
            lock (gate)
            {
                if (isClosed) return;
                latest.Store(room);
                Tap?.OnUpdate(latest.Bytes);
            }
        }

        public void OnFailure(Exception failure)
        {
            lock (gate)
            {
                Add(new SessionEvent(failure));
                endsWithUpdate = false;
            }
        }

        public void OnPowerLost() => PowerLost();

        private void Add(SessionEvent added)
        {
            if (!isClosed) events.Enqueue(added);
        }
    }
}
