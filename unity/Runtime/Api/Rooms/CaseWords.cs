using System;
using System.Collections.Generic;

namespace Vantorel
{
    /// <summary>The platform's words of an enumeration: its cases' names in lower camel case.</summary>
    internal static class CaseWords<T> where T : struct
    {
        private static readonly Dictionary<string, Case<T>> Known = MakeKnown();

        internal static IEnumerable<string> Words => Known.Keys;

        internal static Case<T> Read(string word)
        {
            return Known.TryGetValue(word, out var known) ? known : new Case<T>(default(T), word);
        }

        private static Dictionary<string, Case<T>> MakeKnown()
        {
            var known = new Dictionary<string, Case<T>>(StringComparer.Ordinal);
            foreach (T value in Enum.GetValues(typeof(T)))
            {
                string name = value.ToString(), word = char.ToLowerInvariant(name[0]) + name.Substring(1);
                if (name != "Unknown") known.Add(word, new Case<T>(value, word));
            }
            return known;
        }
    }
}
