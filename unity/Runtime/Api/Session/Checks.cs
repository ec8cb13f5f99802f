using System;
using System.IO;
using System.Text;
using Vantorel.Interop;

namespace Vantorel
{
    /// <summary>What is looked at before the library is asked: it would refuse silently, or stop the app.</summary>
    internal static class Checks
    {
        private const string CameraUsageKey = "NSCameraUsageDescription";

        internal static void Support()
        {
            if (!Native.VantorelSupport())
                throw new NotSupportedException("This device cannot scan rooms: it has no LiDAR scanner.");
        }

        internal static void MultiRoomSupport()
        {
            if (!Native.MultiRoomSupport())
                throw new NotSupportedException("Several rooms need iOS 17 and a LiDAR scanner.");
        }

        internal static void WorldMapSupport()
        {
            if (!Native.ARWorldMapSupport())
                throw new NotSupportedException("World maps need iOS 17 and a LiDAR scanner.");
        }

        /// <summary>iOS ends an app at its first use of the camera when it does not say what for.</summary>
        /// <param name="infoPlistPath">Null: nothing is looked at.</param>
        internal static void CameraUsage(string infoPlistPath)
        {
            if (infoPlistPath == null) return;
            // Keys are plain ASCII in both forms of property lists, XML and binary.
            string text = Encoding.ASCII.GetString(File.ReadAllBytes(infoPlistPath));
            if (text.IndexOf(CameraUsageKey, StringComparison.Ordinal) < 0)
                throw new InvalidOperationException("The app's Info.plist says nothing under " + CameraUsageKey + ".");
        }

        /// <summary>The folder of a scan to be saved, which must not exist yet.</summary>
        internal static string NewScanFolder(string documents, string directory, string scan)
        {
            if (!Directory.Exists(documents))
                throw new DirectoryNotFoundException("There is no documents folder \"" + documents + "\".");
            string folder = documents + "/" + Name(directory, nameof(directory)) + "/" + Name(scan, nameof(scan));
            if (Directory.Exists(folder) || File.Exists(folder))
                throw new IOException("There is a scan already in \"" + folder + "\"; a scan is written once.");
            return folder;
        }

        /// <summary>The path of the world map to be written; a map that cannot be written would stop the app.</summary>
        internal static string WritableWorldMap(string folder)
        {
            string map = Path.Combine(Directory.CreateDirectory(Path.Combine(folder, "WorldMap")).FullName, "scan");
            string trial = map + ".trial";
            File.WriteAllBytes(trial, new byte[] { 0 });
            File.Delete(trial);
            return map;
        }

        private static string Name(string name, string parameter)
        {
            if (name == null) throw new ArgumentNullException(parameter);
            if (name.Length == 0) throw new ArgumentException("The name is empty.", parameter);
            return name;
        }
    }
}
