using System;

namespace Vantorel
{
    /// <summary>Hears a session's callbacks at once, on the threads where they come. Must not throw.</summary>
    internal interface ISessionTap
    {
        void OnRun();

        void OnInstruction(string word);

        /// <summary>The UTF-8 text is valid during the call only.</summary>
        void OnUpdate(ArraySegment<byte> room);
    }
}
