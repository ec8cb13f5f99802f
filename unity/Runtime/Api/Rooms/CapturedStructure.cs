using System;
using System.Collections.Generic;
using System.IO;
using System.Text;

namespace Vantorel
{
    /// <summary>Several rooms of one space, merged: the elements of all, and the rooms themselves.</summary>
    public sealed class CapturedStructure : RoomElements
    {
        internal CapturedStructure() { }

        /// <summary>The rooms that were merged.</summary>
        public IReadOnlyList<CapturedRoom> Rooms { get; internal set; } = new CapturedRoom[0];

        /// <param name="json">A structure's text, as a merge's "scan.json" holds it.</param>
        /// <exception cref="FormatException">The text is no structure.</exception>
        public static CapturedStructure Parse(string json) => Parse(Encoding.UTF8.GetBytes(json));

        /// <exception cref="FormatException">The file holds no structure.</exception>
        /// <exception cref="IOException">The file cannot be read.</exception>
        public static CapturedStructure Load(string path) => Parse(File.ReadAllBytes(path));

        private static CapturedStructure Parse(byte[] utf8) => RoomReader.ReadStructure(new ArraySegment<byte>(utf8));
    }
}
