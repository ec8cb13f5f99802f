using System;
using Newtonsoft.Json;

namespace Vantorel
{
    /// <summary>
    /// Reads room and structure texts. Keys may come in any order, unknown ones are skipped, and null counts as absent:
    /// later systems may add things, and a scan should still be read.
    /// </summary>
    internal static class RoomReader
    {
        private const int DeepestNesting = 512;

        internal static CapturedRoom ReadRoom(ArraySegment<byte> utf8)
        {
            var room = Read(utf8, Room);
            if (room.Version == 0) throw new FormatException("The text has no \"version\": it is no room.");
            return room;
        }

        internal static CapturedStructure ReadStructure(ArraySegment<byte> utf8)
        {
            var structure = Read(utf8, Structure);
            if (structure.Rooms.Count == 0) throw new FormatException("The text has no \"rooms\": it is no structure.");
            return structure;
        }

        private static T Read<T>(ArraySegment<byte> utf8, Func<RoomTextReader, T> read)
        {
            using (var json = new RoomTextReader(utf8) { MaxDepth = DeepestNesting })
            {
                try
                {
                    json.Read();
                    T value = read(json);
                    json.Read();  // refuses whatever follows
                    return value;
                }
                catch (JsonException failure)
                {
                    throw new FormatException(failure.Message, failure);
                }
            }
        }

        private static CapturedStructure Structure(RoomTextReader json)
        {
            var structure = new CapturedStructure();
            json.ExpectObject();
            while (json.NextMember(out string key))
            {
                if (key == "rooms") structure.Rooms = json.ReadList(Room);
                else if (!ReadElements(json, key, structure)) json.Skip();
            }
            return structure;
        }

        private static CapturedRoom Room(RoomTextReader json)
        {
            var room = new CapturedRoom();
            json.ExpectObject();
            while (json.NextMember(out string key))
            {
                switch (key)
                {
                    case "identifier": room.Identifier = json.ReadText(); break;
                    case "story": room.Story = json.ReadWhole(); break;
                    case "referenceOriginTransform": room.ReferenceOriginTransform = json.ReadFloats(16); break;
                    case "rooms": throw new FormatException("The text is a structure, several rooms merged.");
                    default:
                        if (!ReadElements(json, key, room)) json.Skip();
                        break;
                }
            }
            return room;
        }

        private static bool ReadElements(RoomTextReader json, string key, RoomElements into)
        {
            switch (key)
            {
                case "version": into.Version = json.ReadWhole() ?? 0; return true;
                case "walls": into.Walls = json.ReadList(ElementReader.Surface); return true;
                case "doors": into.Doors = json.ReadList(ElementReader.Surface); return true;
                case "windows": into.Windows = json.ReadList(ElementReader.Surface); return true;
                case "openings": into.Openings = json.ReadList(ElementReader.Surface); return true;
                case "floors": into.Floors = json.ReadList(ElementReader.Surface); return true;
                case "objects": into.Objects = json.ReadList(ElementReader.Object); return true;
                case "sections": into.Sections = json.ReadList(ElementReader.Section); return true;
                default: return false;
            }
        }
    }
}
