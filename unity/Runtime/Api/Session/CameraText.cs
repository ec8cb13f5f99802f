using System;
using System.Globalization;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>The library's text of a matrix: "[1.0, 0.0, ...]", 16 numbers row by row.</summary>
    internal static class CameraText
    {
        /// <summary>Reads a text of the library and frees it.</summary>
        internal static float[] Take(IntPtr text) => Read(NativeText.Take(text));

        /// <summary>16 numbers column by column; null for an empty text.</summary>
        internal static float[] Read(string text)
        {
            if (text.Length == 0) return null;
            string[] numbers = text.Trim('[', ']').Split(',');
            var columns = new float[16];
            for (int i = 0; i < columns.Length; ++i)
                columns[i % 4 * 4 + i / 4] = float.Parse(numbers[i], NumberStyles.Float, CultureInfo.InvariantCulture);
            return columns;
        }
    }
}
