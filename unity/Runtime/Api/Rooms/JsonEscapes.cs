using System;
using System.Globalization;
using System.Text;

namespace Vantorel
{
    /// <summary>The backslash escapes of JSON texts.</summary>
    internal static class JsonEscapes
    {
        private const string Letters = "\"\\/bfnrt", Meanings = "\"\\/\b\f\n\r\t";

        /// <summary>Null for an escape that JSON does not have.</summary>
        internal static string Resolve(string content)
        {
            var resolved = new StringBuilder(content.Length);
            for (int i = 0; i < content.Length; ++i)
            {
                if (content[i] != '\\')
                {
                    resolved.Append(content[i]);
                    continue;
                }
                ++i;  // never the end: a backslash before the closing quote would have escaped it
                int letter = Letters.IndexOf(content[i]);
                if (letter >= 0) resolved.Append(Meanings[letter]);
                else if (TryReadUnit(content, ref i, out char unit)) resolved.Append(unit);
                else return null;
            }
            return resolved.ToString();
        }

        /// <summary>Four hexadecimal digits behind a "u"; leaves `i` on the last.</summary>
        private static bool TryReadUnit(string content, ref int i, out char unit)
        {
            unit = '\0';
            if (content[i] != 'u' || i + 4 >= content.Length) return false;
            bool isUnit = ushort.TryParse(content.Substring(i + 1, 4), NumberStyles.AllowHexSpecifier,
                                          CultureInfo.InvariantCulture, out ushort value);
            unit = (char)value;
            i += 4;
            return isUnit;
        }
    }
}
