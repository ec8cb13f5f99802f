using System;
using System.IO;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>Makes lines of callbacks. Any thread; a failure ends the recording and is told at the end.</summary>
    internal sealed class RecordingTap : ISessionTap
    {
        private readonly object gate = new object();
        private readonly RecordingFile file;
        private readonly Func<double> clock;
        private double runStart = double.NaN;
        private bool isFinished;
        private Exception failure;

        internal RecordingTap(RecordingFile file, Func<double> clock)
        {
            this.file = file;
            this.clock = clock;
        }

        public void OnRun() => Record(() =>
        {
            runStart = clock();
            file.WriteRun();
        });

        public void OnInstruction(string word) => Record(() =>
        {
            if (IsRunning) file.WriteInstruction(RunTime, word);
        });

        public void OnUpdate(ArraySegment<byte> room) => Record(() =>
        {
            // Updates come on the main thread, where the camera may be asked for.
            if (IsRunning) file.WriteUpdate(RunTime, CameraText.Take(Native.getVTLARCameraMatrixRuntime()), room);
        });

        internal void Finish()
        {
            lock (gate)
            {
                isFinished = true;
                file.Dispose();
            }
            if (failure != null) throw new IOException("Not all could be recorded: " + failure.Message, failure);
        }

        private bool IsRunning => !double.IsNaN(runStart);

        private double RunTime => clock() - runStart;

        private void Record(Action write)
        {
            lock (gate)
            {
                if (isFinished || failure != null) return;
                try
                {
                    write();
                }
                catch (Exception thrown)
                {
                    failure = thrown;
                }
            }
        }
    }
}
