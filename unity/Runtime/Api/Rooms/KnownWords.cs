using System;
using System.Collections.Generic;

namespace Vantorel
{
    /// <summary>The words of the format, found by their bytes: reading a room makes no strings of them.</summary>
    internal static class KnownWords
    {
        private const int Longest = 32;

        private static readonly string[] Words =
        {
            "attributes", "category", "center", "completedEdges", "confidence", "coreModel", "curve", "dimensions",
            "doors", "floors", "identifier", "isOpen", "label", "objects", "openings", "parentIdentifier", "polygonCorners",
            "referenceOriginTransform", "rooms", "sections", "story", "transform", "version", "walls", "windows",
            "ChairArmType", "ChairBackType", "ChairLegType", "ChairType", "SofaType", "StorageType", "TableShapeType",
            "TableType", "cabinet", "circularElliptic", "coffee", "dining", "existing", "four", "lShaped",
            "lShapedExtension", "missing", "rectangular", "shelf", "singleSeat", "star", "stool", "swivel",
        };

        private static readonly Dictionary<int, string> ByHash = MakeTable();

        /// <summary>Null for a word that is none of them.</summary>
        internal static string Find(byte[] text, int start, int length)
        {
            if (length > Longest) return null;
            int hash = 17;
            for (int i = 0; i < length; ++i) hash = Add(hash, text[start + i]);
            return ByHash.TryGetValue(hash, out string word) && Equals(word, text, start, length) ? word : null;
        }

        private static bool Equals(string word, byte[] text, int start, int length)
        {
            if (word.Length != length) return false;
            for (int i = 0; i < length; ++i)
                if (word[i] != text[start + i]) return false;
            return true;
        }

        private static Dictionary<int, string> MakeTable()
        {
            var table = new Dictionary<int, string>();
            Enter(Words, table);
            Enter(CaseWords<SurfaceCategory>.Words, table);
            Enter(CaseWords<ObjectCategory>.Words, table);
            Enter(CaseWords<Confidence>.Words, table);
            Enter(CaseWords<SectionLabel>.Words, table);
            Enter(CaseWords<SurfaceEdge>.Words, table);
            return table;
        }

        private static void Enter(IEnumerable<string> words, Dictionary<int, string> table)
        {
            foreach (string word in words)
            {
                int hash = 17;
                foreach (char letter in word) hash = Add(hash, letter);
                table[hash] = word;
            }
        }

        private static int Add(int hash, int letter) => unchecked(hash * 31 + letter);
    }
}
