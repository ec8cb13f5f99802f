using System.Collections.Generic;

namespace Vantorel.Editor
{
    /// <summary>What an inspector shows of a session: its state, its last coaching word and its plan so far.</summary>
    internal sealed class ScanWatch
    {
        private ScanSession session;
        private CapturedRoom drawn;

        internal string State { get; private set; } = "no session";

        /// <summary>Empty before the first one.</summary>
        internal string Instruction { get; private set; } = "";

        internal int UpdateCount => session == null ? 0 : session.UpdateCount;

        /// <summary>See <see cref="FloorPlan"/>; parsed only when somebody looks.</summary>
        internal List<PlanLine> Plan { get; private set; } = new List<PlanLine>();

        /// <param name="newest">The session that there is now; null without one.</param>
        internal void Look(ScanSession newest)
        {
            if (newest != session) Turn(newest);
            State = Describe(session);
            if (session == null || session.Room == drawn) return;
            drawn = session.Room;
            Plan = FloorPlan.Of(drawn);
        }

        /// <summary>To the session from now on; null: look away.</summary>
        internal void Turn(ScanSession newest)
        {
            if (session != null) session.InstructionReceived -= Hear;
            session = newest;
            if (session != null) session.InstructionReceived += Hear;
            drawn = null;
            Instruction = "";
            Plan = new List<PlanLine>();
        }

        private static string Describe(ScanSession session)
        {
            if (session == null) return "no session";
            if (session.IsScanning) return "scanning";
            return session.IsInitialized ? "ready" : "not started";
        }

        private void Hear(Coaching coaching) => Instruction = coaching.Text;
    }
}
