using System;
using System.IO;
using System.Text;

namespace Vantorel
{
    /// <summary>A scanned room as values, of any generation of RoomPlan; what a text lacks is empty or null.</summary>
    public sealed class CapturedRoom : RoomElements
    {
        internal CapturedRoom() { }

        /// <summary>Phones write none: then null.</summary>
        public string Identifier { get; internal set; }

        /// <summary>Null in rooms of iOS 16.</summary>
        public int? Story { get; internal set; }

        /// <summary>16 numbers column by column; null before iOS 18.</summary>
        public float[] ReferenceOriginTransform { get; internal set; }

        /// <param name="json">A room text, as a scan's "scan.json" holds it.</param>
        /// <exception cref="FormatException">The text is no room.</exception>
        public static CapturedRoom Parse(string json) => Parse(new ArraySegment<byte>(Encoding.UTF8.GetBytes(json)));

        /// <exception cref="FormatException">The file holds no room.</exception>
        /// <exception cref="IOException">The file cannot be read.</exception>
        public static CapturedRoom Load(string path) => Parse(new ArraySegment<byte>(File.ReadAllBytes(path)));

        internal static CapturedRoom Parse(ArraySegment<byte> utf8) => RoomReader.ReadRoom(utf8);
    }
}
