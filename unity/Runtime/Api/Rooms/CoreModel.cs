using System;
using System.Text;

namespace Vantorel
{
    /// <summary>
    /// Where a text has a "coreModel", the platform's opaque data and most of a room's text; found without reading the
    /// rest. All are places in the text's array.
    /// </summary>
    internal readonly struct CoreModel
    {
        private static readonly byte[] Key = Encoding.ASCII.GetBytes("\"coreModel\"");

        private CoreModel(int key, int value, int end)
        {
            KeyStart = key;
            ValueStart = value;
            ValueEnd = end;
        }

        internal int KeyStart { get; }

        /// <summary>The opening quote.</summary>
        internal int ValueStart { get; }

        /// <summary>Behind the closing quote.</summary>
        internal int ValueEnd { get; }

        /// <summary>The next one from `start` on; null when there is none.</summary>
        internal static CoreModel? Find(byte[] text, int start, int end)
        {
            for (int at = start; (at = Array.IndexOf(text, Key[0], at, end - at)) >= 0; ++at)
            {
                if (!IsKey(text, at, end)) continue;
                int value = SkipBlanks(text, at + Key.Length, end);
                if (value == end || text[value] != ':') continue;  // only keys have a colon behind
                value = SkipBlanks(text, value + 1, end);
                int behind = value < end && text[value] == '"' ? SkipString(text, value, end) : -1;
                if (behind >= 0) return new CoreModel(at, value, behind);
            }
            return null;
        }

        /// <summary>Behind the blanks that begin here.</summary>
        internal static int SkipBlanks(byte[] text, int at, int end)
        {
            while (at < end && (text[at] == ' ' || text[at] == '\n' || text[at] == '\r' || text[at] == '\t')) ++at;
            return at;
        }

        /// <summary>Behind the string whose opening quote is here; -1 when it has no end.</summary>
        internal static int SkipString(byte[] text, int quote, int end)
        {
            int at = quote;
            do
            {
                at = Array.IndexOf(text, Key[0], at + 1, end - at - 1);
            } while (at >= 0 && IsEscaped(text, at));
            return at < 0 ? -1 : at + 1;
        }

        private static bool IsKey(byte[] text, int at, int end)
        {
            if (end - at < Key.Length) return false;
            for (int i = 1; i < Key.Length; ++i)
                if (text[at + i] != Key[i]) return false;
            return true;
        }

        private static bool IsEscaped(byte[] text, int at)
        {
            int backslashes = 0;
            while (text[at - backslashes - 1] == '\\') ++backslashes;
            return backslashes % 2 == 1;
        }
    }
}
