using System;
using System.Collections.Generic;
using System.IO;
using Newtonsoft.Json;

namespace Vantorel
{
    /// <summary>
    /// Values read token by token. Each method finds the reader on the value's first token and leaves it on the last.
    /// </summary>
    internal static class JsonReading
    {
        internal static void ExpectObject(this RoomTextReader json)
        {
            if (json.TokenType != JsonToken.StartObject) throw json.Wrong("an object");
        }

        /// <summary>From the object's start or a member's value to the next member's value; false at the end.</summary>
        internal static bool NextMember(this RoomTextReader json, out string key)
        {
            json.ReadInside();
            key = json.Value as string;
            return json.TokenType != JsonToken.EndObject && json.ReadInside();
        }

        /// <summary>Empty for null.</summary>
        internal static IReadOnlyList<T> ReadList<T>(this RoomTextReader json, Func<RoomTextReader, T> readItem)
        {
            if (json.TokenType == JsonToken.Null) return Empty<T>.Array;
            if (json.TokenType != JsonToken.StartArray) throw json.Wrong("an array");
            json.ReadInside();
            if (json.TokenType == JsonToken.EndArray) return Empty<T>.Array;
            var items = new List<T>();
            for (; json.TokenType != JsonToken.EndArray; json.ReadInside()) items.Add(readItem(json));
            return items;
        }

        /// <summary>Null for null.</summary>
        internal static float[] ReadFloats(this RoomTextReader json, int count)
        {
            if (json.TokenType == JsonToken.Null) return null;
            if (json.TokenType != JsonToken.StartArray) throw json.Wrong(count + " numbers");
            var numbers = new float[count];
            for (int i = 0; i < count; ++i)
            {
                json.ReadInside();
                numbers[i] = json.ReadFloat();
            }
            json.ReadInside();
            if (json.TokenType != JsonToken.EndArray) throw json.Wrong(count + " numbers");
            return numbers;
        }

        /// <summary>A case is an object of one key: its word, with a payload behind that is skipped.</summary>
        internal static Case<T> ReadCase<T>(this RoomTextReader json) where T : struct
        {
            var read = default(Case<T>);
            if (json.TokenType == JsonToken.Null) return read;
            json.ExpectObject();
            while (json.NextMember(out string word))
            {
                read = CaseWords<T>.Read(word);
                json.Skip();
            }
            return read;
        }

        /// <summary>Null for null.</summary>
        internal static string ReadText(this RoomTextReader json)
        {
            if (json.TokenType == JsonToken.Null) return null;
            return json.TokenType == JsonToken.String ? (string)json.Value : throw json.Wrong("a text");
        }

        internal static bool ReadFlag(this RoomTextReader json)
        {
            return json.TokenType == JsonToken.Boolean ? (bool)json.Value : throw json.Wrong("true or false");
        }

        /// <summary>Null for null.</summary>
        internal static int? ReadWhole(this RoomTextReader json)
        {
            if (json.TokenType == JsonToken.Null) return null;
            double number = json.ReadNumber();
            return number == (int)number ? (int)number : throw json.Wrong("a whole number");
        }

        /// <summary>The value's JSON, compact; null for null.</summary>
        internal static string ReadRaw(this RoomTextReader json)
        {
            if (json.TokenType == JsonToken.Null) return null;
            var text = new StringWriter();
            using (var writer = new JsonTextWriter(text)) writer.WriteToken(json);
            return text.ToString();
        }

        private static float ReadFloat(this RoomTextReader json)
        {
            float number = (float)json.ReadNumber();
            return float.IsInfinity(number) || float.IsNaN(number) ? throw json.Wrong("a number of 32 bits") : number;
        }

        private static double ReadNumber(this RoomTextReader json)
        {
            return json.Value is double number ? number : throw json.Wrong("a number");
        }

        private static class Empty<T>
        {
            internal static readonly T[] Array = new T[0];
        }

        private static bool ReadInside(this RoomTextReader json)
        {
            return json.Read() ? true : throw json.Wrong("more text");
        }
    }
}
