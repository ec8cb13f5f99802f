using System;
using System.Runtime.InteropServices;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>The newest room text as UTF-8, in one buffer that is used again. Not for several threads.</summary>
    internal sealed class LatestText
    {
        private byte[] buffer = new byte[0];
        private int length;

        /// <summary>How many texts came so far.</summary>
        internal int Number { get; private set; }

        internal ArraySegment<byte> Bytes => new ArraySegment<byte>(buffer, 0, length);

        internal void Store(IntPtr text)
        {
            int size = NativeText.Length(text);
            if (size > buffer.Length) buffer = new byte[Math.Max(size, buffer.Length * 2)];
            Marshal.Copy(text, buffer, 0, size);
            length = size;
            ++Number;
        }
    }
}
