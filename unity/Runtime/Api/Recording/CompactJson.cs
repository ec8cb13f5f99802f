using System;
using System.IO;

namespace Vantorel
{
    /// <summary>JSON without the blanks between its tokens.</summary>
    internal static class CompactJson
    {
        internal static void Write(ArraySegment<byte> json, Stream to)
        {
            byte[] text = json.Array;
            int at = json.Offset, end = json.Offset + json.Count;
            while ((at = CoreModel.SkipBlanks(text, at, end)) < end)
            {
                int start = at;
                do at = text[at] == '"' ? StringEnd(text, at, end) : at + 1;
                while (at < end && text[at] > ' ');
                to.Write(text, start, at - start);
            }
        }

        private static int StringEnd(byte[] text, int quote, int end)
        {
            int at = quote + 1;
            while (at < end && text[at] != '"') at += text[at] == '\\' ? 2 : 1;
            return Math.Min(at + 1, end);
        }
    }
}
