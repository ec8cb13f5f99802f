using System.Collections.Generic;
using Newtonsoft.Json;

namespace Vantorel
{
    /// <summary>Reads a room's surfaces, objects and sections.</summary>
    internal static class ElementReader
    {
        internal static Surface Surface(RoomTextReader json)
        {
            var surface = new Surface();
            json.ExpectObject();
            while (json.NextMember(out string key))
            {
                switch (key)
                {
                    case "identifier": surface.Identifier = json.ReadText(); break;
                    case "parentIdentifier": surface.ParentIdentifier = json.ReadText(); break;
                    case "category": ReadCategory(json, surface); break;
                    case "confidence": surface.Confidence = json.ReadCase<Confidence>(); break;
                    case "dimensions": surface.Dimensions = json.ReadFloats(3); break;
                    case "transform": surface.Transform = json.ReadFloats(16); break;
                    case "polygonCorners": surface.PolygonCorners = json.ReadList(Corner); break;
                    case "completedEdges": surface.CompletedEdges = json.ReadList(Edge); break;
                    case "curve": surface.CurveJson = json.ReadRaw(); break;
                    case "story": surface.Story = json.ReadWhole(); break;
                    default: json.Skip(); break;
                }
            }
            return surface;
        }

        internal static RoomObject Object(RoomTextReader json)
        {
            var found = new RoomObject();
            json.ExpectObject();
            while (json.NextMember(out string key))
            {
                switch (key)
                {
                    case "identifier": found.Identifier = json.ReadText(); break;
                    case "parentIdentifier": found.ParentIdentifier = json.ReadText(); break;
                    case "category": found.Category = json.ReadCase<ObjectCategory>(); break;
                    case "confidence": found.Confidence = json.ReadCase<Confidence>(); break;
                    case "dimensions": found.Dimensions = json.ReadFloats(3); break;
                    case "transform": found.Transform = json.ReadFloats(16); break;
                    case "attributes": found.Attributes = Attributes(json) ?? found.Attributes; break;
                    case "story": found.Story = json.ReadWhole(); break;
                    default: json.Skip(); break;
                }
            }
            return found;
        }

        internal static Section Section(RoomTextReader json)
        {
            var section = new Section();
            json.ExpectObject();
            while (json.NextMember(out string key))
            {
                switch (key)
                {
                    case "label": section.Label = CaseWords<SectionLabel>.Read(json.ReadText() ?? ""); break;
                    case "center": section.Center = json.ReadFloats(3); break;
                    case "story": section.Story = json.ReadWhole(); break;
                    default: json.Skip(); break;
                }
            }
            return section;
        }

        private static float[] Corner(RoomTextReader json) => json.ReadFloats(3) ?? throw json.Wrong("3 numbers");

        private static Case<SurfaceEdge> Edge(RoomTextReader json) => json.ReadCase<SurfaceEdge>();

        /// <summary>As ReadCase, but a door's payload says whether it is open.</summary>
        private static void ReadCategory(RoomTextReader json, Surface surface)
        {
            if (json.TokenType == JsonToken.Null) return;
            json.ExpectObject();
            while (json.NextMember(out string word))
            {
                surface.Category = CaseWords<SurfaceCategory>.Read(word);
                json.ExpectObject();
                while (json.NextMember(out string key))
                {
                    if (key == "isOpen") surface.IsOpen = json.ReadFlag();
                    else json.Skip();
                }
            }
        }

        /// <summary>Null when there are none.</summary>
        private static IReadOnlyDictionary<string, string> Attributes(RoomTextReader json)
        {
            if (json.TokenType == JsonToken.Null) return null;
            Dictionary<string, string> attributes = null;
            json.ExpectObject();
            while (json.NextMember(out string name))
            {
                if (attributes == null) attributes = new Dictionary<string, string>();
                attributes[name] = json.ReadText();
            }
            return attributes;
        }
    }
}
