using System;
using System.Collections.Generic;
using System.Threading.Tasks;

namespace Vantorel
{
    /// <summary>Tasks that wait for a condition, and are completed by <see cref="Check"/> alone.</summary>
    internal sealed class Waits
    {
        private readonly Func<double> clock;
        private readonly List<Wait> pending = new List<Wait>();

        internal Waits(Func<double> clock) { this.clock = clock; }

        /// <param name="seconds">From now; infinity for ever.</param>
        /// <param name="tooLate">What the TimeoutException says.</param>
        internal Task Until(Func<bool> holds, double seconds, string tooLate)
        {
            var wait = new Wait(holds, clock() + seconds, tooLate);
            pending.Add(wait);
            return wait.Task;
        }

        internal void Check()
        {
            if (pending.Count == 0) return;
            // What waits goes on inside Complete and may wait again: that is for the next time.
            double now = clock();
            foreach (var wait in pending.ToArray())
            {
                if (!wait.IsDue(now)) continue;
                if (pending.Remove(wait)) wait.Complete();
            }
        }

        internal void Cancel()
        {
            var cancelled = pending.ToArray();
            pending.Clear();
            foreach (var wait in cancelled) wait.Cancel();
        }
    }
}
