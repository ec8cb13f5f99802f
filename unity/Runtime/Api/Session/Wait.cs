using System;
using System.Threading.Tasks;

namespace Vantorel
{
    /// <summary>A task that is done once a condition holds, and fails when it is too late.</summary>
    internal sealed class Wait
    {
        private readonly Func<bool> holds;
        private readonly double deadline;
        private readonly string tooLate;
        private readonly TaskCompletionSource<bool> source = new TaskCompletionSource<bool>();
        private Exception failure;

        internal Wait(Func<bool> holds, double deadline, string tooLate)
        {
            this.holds = holds;
            this.deadline = deadline;
            this.tooLate = tooLate;
        }

        internal Task Task => source.Task;

        /// <summary>Whether there is an outcome; <see cref="Complete"/> makes it known.</summary>
        internal bool IsDue(double now)
        {
            try
            {
                if (holds()) return true;
                if (now > deadline) failure = new TimeoutException(tooLate);
            }
            catch (Exception thrown)
            {
                failure = thrown;
            }
            return failure != null;
        }

        internal void Complete()
        {
            if (failure == null) source.SetResult(true);
            else source.SetException(failure);
        }

        internal void Cancel() => source.SetCanceled();
    }
}
