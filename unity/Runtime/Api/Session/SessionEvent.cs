using System;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>A callback on its way to the main thread: an event, a coaching word, or what went wrong.</summary>
    internal readonly struct SessionEvent
    {
        internal SessionEvent(NativeEvent native)
        {
            Native = native;
            Word = null;
            Failure = null;
        }

        internal SessionEvent(string word) : this(default(NativeEvent)) { Word = word; }

        internal SessionEvent(Exception failure) : this(default(NativeEvent)) { Failure = failure; }

        /// <summary>What happened, unless there is a word or a failure.</summary>
        internal NativeEvent Native { get; }

        internal string Word { get; }

        internal Exception Failure { get; }
    }
}
