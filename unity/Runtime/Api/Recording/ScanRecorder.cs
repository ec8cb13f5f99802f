using System;
using System.IO;

namespace Vantorel
{
    /// <summary>
    /// Records what a session's callbacks bring, in the project's recording format, so that a scan done on a phone plays
    /// on the simulated device. Runs that begin from now on are in it; not in it is what the app does. Until
    /// <see cref="Finish"/> the file has ".part" behind its name.
    /// </summary>
    public sealed class ScanRecorder : IDisposable
    {
        private readonly ScanSession session;
        private readonly string path;
        private readonly RecordingTap tap;
        private bool isFinished;

        /// <exception cref="InvalidOperationException">The session is being recorded already.</exception>
        /// <exception cref="IOException">The file cannot be written.</exception>
        public ScanRecorder(ScanSession session, string path)
        {
            session.RequireAlive();
            if (session.Tap != null) throw new InvalidOperationException("This session is being recorded already.");
            this.session = session;
            this.path = path;
            tap = new RecordingTap(new RecordingFile(path + ".part"), session.Clock);
            session.Tap = tap;
        }

        /// <summary>Ends the recording and gives the file its name, in place of one that was there.</summary>
        /// <exception cref="IOException">Not all of it could be written; the part is left.</exception>
        public void Finish()
        {
            if (isFinished) return;
            isFinished = true;
            session.Tap = null;
            tap.Finish();
            if (File.Exists(path)) File.Delete(path);
            File.Move(path + ".part", path);
        }

        /// <summary>Ends the recording, unless it was finished; only <see cref="Finish"/> tells of a failure.</summary>
        public void Dispose()
        {
            try
            {
                Finish();
            }
            catch (IOException)
            {
                // Whoever wants to know calls Finish.
            }
        }
    }
}
