using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Threading.Tasks;
using Vantorel.Interop;

namespace Vantorel
{
    public sealed partial class ScanSession
    {
        private const string RoomSeparator = "_|+++++AMBER_WREN+++++|_";

        /// <summary>
        /// Saves the last room into documents/directory/scan. With two or more rooms closed they are merged with it
        /// instead, which takes seconds and stops the scanning; call <see cref="StopAsync"/> after it.
        /// </summary>
        /// <exception cref="InvalidOperationException">A save, start or stop is under way.</exception>
        /// <exception cref="DirectoryNotFoundException">There is no documents folder.</exception>
        /// <exception cref="IOException">There is a scan of that name, or not all files could be written.</exception>
        /// <exception cref="TimeoutException">The merge did not write its last file.</exception>
        public Task<SavedScan> SaveAsync(string directory, string scan) => Exclusively("save", async () =>
        {
            var saved = new SavedScan(Checks.NewScanFolder(settings.DocumentsFolder, directory, scan));
            if (!Native.trySaveRoomPlanExperience(NativeText.ToNative(directory, nameof(directory)),
                                                  NativeText.ToNative(scan, nameof(scan))))
                throw new IOException("Not all files could be written to \"" + saved.Folder + "\".");
            // One room is written by now. A merge writes nothing before the main queue runs.
            bool isMerge = !File.Exists(saved.JsonPath);
            await Written(isMerge ? saved.MetadataPath : saved.JsonPath);
            return saved;
        });

        /// <summary>Merges rooms of one space into one structure and saves it into documents/directory/scan.</summary>
        /// <param name="rooms">Room texts, as <see cref="RoomText"/> gives them.</param>
        /// <exception cref="ArgumentException">There is no room, or a text that is none.</exception>
        /// <exception cref="NotSupportedException">No LiDAR, or before iOS 17.</exception>
        /// <exception cref="DirectoryNotFoundException">There is no documents folder.</exception>
        /// <exception cref="IOException">There is a scan of that name.</exception>
        /// <exception cref="TimeoutException">The last file was not written: the rooms could not be merged.</exception>
        public async Task<SavedScan> MergeAsync(IEnumerable<string> rooms, string directory, string scan)
        {
            RequireAlive();
            Checks.MultiRoomSupport();
            string joined = Joined(rooms);
            var saved = new SavedScan(Checks.NewScanFolder(settings.DocumentsFolder, directory, scan));
            Native.mergeScans(NativeText.ToNative(joined, nameof(rooms)),
                              NativeText.ToNative(directory, nameof(directory)), NativeText.ToNative(scan, nameof(scan)));
            await Written(saved.MetadataPath);
            return saved;
        }

        /// <summary>The library passes over texts that are no rooms: one would be missing in silence.</summary>
        private static string Joined(IEnumerable<string> rooms)
        {
            var texts = rooms.ToArray();
            if (texts.Length == 0) throw new ArgumentException("There is no room to merge.", nameof(rooms));
            for (int i = 0; i < texts.Length; ++i) RequireRoom(texts[i], i + 1);
            return string.Join(RoomSeparator, texts);
        }

        private static void RequireRoom(string text, int number)
        {
            if (string.IsNullOrWhiteSpace(text)) throw new ArgumentException("Room " + number + " to merge has no text.", "rooms");
            try
            {
                CapturedRoom.Parse(text);
            }
            catch (FormatException error)
            {
                throw new ArgumentException("Room " + number + " to merge is no room: " + error.Message, "rooms", error);
            }
        }

        private Task Written(string path)
        {
            string tooLate = "\"" + path + "\" was not written.";
            return fileWaits.Until(new GrownFile(path).IsComplete, settings.MergeTimeout, tooLate);
        }
    }
}
