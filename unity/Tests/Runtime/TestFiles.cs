using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using NUnit.Framework;

namespace Vantorel.Tests
{
    /// <summary>Rooms and sources; VANTOREL_ROOT is the folder that holds the library's sources.</summary>
    internal static class TestFiles
    {
        internal static string Root
        {
            get
            {
                string root = Environment.GetEnvironmentVariable("VANTOREL_ROOT");
                if (root == null) Assert.Ignore("VANTOREL_ROOT does not say where the library's sources are");
                return root;
            }
        }

        internal static string Flat => Sample("flat.json");

        internal static string Sample(string name) => Path.Combine(Root, "samples", name);

        /// <summary>The samples and, where they are at hand, real scans of all generations.</summary>
        internal static IEnumerable<string> Rooms
        {
            get
            {
                yield return Flat;
                yield return Sample("house.json");
                string shared = Path.Combine(Root, "..", "shared", "rooms");
                if (!Directory.Exists(shared)) yield break;
                foreach (string room in Directory.GetFiles(shared, "*.json").OrderBy(name => name, StringComparer.Ordinal))
                    yield return room;
            }
        }
    }
}
