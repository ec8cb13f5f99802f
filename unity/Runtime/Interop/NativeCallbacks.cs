using System;

namespace Vantorel.Interop
{
    /// <summary>
    /// The functions that the library calls, and who hears them: the one current listener. Nothing is thrown into
    /// native code, and each text is freed exactly once, whether somebody hears it or not.
    /// </summary>
    internal static class NativeCallbacks
    {
        // Native code holds only function pointers; these fields keep what is behind them.
        private static readonly NativeCallback OnDidStart = DidStart;
        private static readonly NativeCallback OnDidEnd = DidEnd;
        private static readonly NativeCallback OnSessionDidStart = SessionDidStart;
        private static readonly NativeCallback OnSessionDidEnd = SessionDidEnd;
        private static readonly NativeCallback OnSessionDidUpdate = SessionDidUpdate;
        private static readonly NativeTextCallback OnInstruction = Instruction;
        private static readonly NativeTextCallback OnSnapshot = Snapshot;

        private static readonly object Gate = new object();
        private static INativeListener current;
        private static bool isPresent;  // the library, from its DidStart to its DidEnd
        private static bool isLeaving;  // from disposeVTL to DidEnd; what comes belongs to the leaver
        private static INativeListener leaver;

        /// <summary>From a call of disposeVTL to its DidEnd.</summary>
        internal static bool IsLeaving
        {
            get
            {
                lock (Gate) return isLeaving;
            }
        }

        /// <exception cref="InvalidOperationException">There is a listener.</exception>
        internal static void Attach(INativeListener listener)
        {
            Native.setVTLDidStart(OnDidStart);
            Native.setVTLDidEnd(OnDidEnd);
            Native.setVTLCaptureSessionDidStart(OnSessionDidStart);
            Native.setVTLCaptureSessionDidEnd(OnSessionDidEnd);
            Native.setVTLCaptureSessionDidUpdate(OnSessionDidUpdate);
            Native.setVTLCaptureSessionInstruction(OnInstruction);
            Native.setVTLRoomSnapshot(OnSnapshot);
            lock (Gate)
            {
                if (current != null)
                    throw new InvalidOperationException(
                        "There is a ScanSession already, and the library knows only one. Dispose it first.");
                current = listener;
            }
        }

        /// <summary>
        /// Takes the library down, which ends with DidEnd; nothing when it is not up, where a dispose would stop the
        /// process.
        /// </summary>
        internal static void TakeDown(INativeListener listener)
        {
            lock (Gate)
            {
                if (!isPresent || isLeaving) return;
                isLeaving = true;
                leaver = listener;
            }
            Native.disposeVTL();
        }

        /// <summary>Nothing is heard any more, and the library goes down.</summary>
        internal static void Detach(INativeListener listener)
        {
            lock (Gate)
            {
                if (current != listener) return;
                current = null;
            }
            TakeDown(listener);
        }

        /// <summary>Before a power cycle of the simulated device.</summary>
        internal static void LosePower()
        {
            INativeListener lost;
            lock (Gate)
            {
                lost = current;
                current = leaver = null;
                isPresent = isLeaving = false;
            }
            lost?.OnPowerLost();
        }

        private static INativeListener Listener
        {
            get
            {
                lock (Gate) return isLeaving && leaver != current ? null : current;
            }
        }

        /// <summary>What is left of a scan of the session before comes when that has gone, and is for nobody.</summary>
        private static INativeListener ScanListener
        {
            get
            {
                var listener = Listener;
                return listener != null && listener.ExpectsScan ? listener : null;
            }
        }

        [MonoPInvokeCallback(typeof(NativeCallback))]
        private static void DidStart()
        {
            bool isOrphan;
            lock (Gate)
            {
                isPresent = true;
                isOrphan = current == null;
            }
            // Whoever asked for it has gone since. Inside its callback the library takes this call: it only queues.
            if (isOrphan) TakeDown(null);
            else Raise(NativeEvent.DidStart, Listener);
        }

        [MonoPInvokeCallback(typeof(NativeCallback))]
        private static void DidEnd()
        {
            Raise(NativeEvent.DidEnd, Listener);
            lock (Gate)
            {
                isPresent = isLeaving = false;
                leaver = null;
            }
        }

        [MonoPInvokeCallback(typeof(NativeCallback))]
        private static void SessionDidStart()
        {
            // A start from a world map outlives whoever asked for it; the library could not be called off.
            var listener = ScanListener;
            if (listener == null) Native.stopCaptureSession();
            else Raise(NativeEvent.CaptureSessionDidStart, listener);
        }

        [MonoPInvokeCallback(typeof(NativeCallback))]
        private static void SessionDidEnd() => Raise(NativeEvent.CaptureSessionDidEnd, ScanListener);

        [MonoPInvokeCallback(typeof(NativeCallback))]
        private static void SessionDidUpdate() => Raise(NativeEvent.CaptureSessionDidUpdate, ScanListener);

        [MonoPInvokeCallback(typeof(NativeTextCallback))]
        private static void Instruction(IntPtr text)
        {
            var listener = ScanListener;
            try
            {
                listener?.OnInstruction(text);
            }
            catch (Exception failure)
            {
                listener.OnFailure(failure);
            }
            NativeText.Free(text);
        }

        [MonoPInvokeCallback(typeof(NativeTextCallback))]
        private static void Snapshot(IntPtr text)
        {
            var listener = ScanListener;
            try
            {
                listener?.OnSnapshot(text);
            }
            catch (Exception failure)
            {
                listener.OnFailure(failure);
            }
            NativeText.Free(text);
        }

        private static void Raise(NativeEvent what, INativeListener listener)
        {
            try
            {
                listener?.OnEvent(what);
            }
            catch (Exception failure)
            {
                listener.OnFailure(failure);
            }
        }
    }
}
