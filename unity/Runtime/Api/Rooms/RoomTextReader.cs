using System;
using System.Collections.Generic;
using System.Text;
using Newtonsoft.Json;

namespace Vantorel
{
    /// <summary>
    /// Tokens of a room's UTF-8 text as it lies in memory. Newtonsoft's own text reader makes a string of every key and
    /// every number, more than twice the text in all; this one makes none of them and jumps over the coreModel, whose
    /// value is an empty string here.
    /// </summary>
    internal sealed class RoomTextReader : JsonReader
    {
        private static readonly object Zero = 0.0, One = 1.0, True = true, False = false;

        private readonly byte[] text;
        private readonly int start;
        private readonly int end;
        private readonly Stack<bool> insideObject = new Stack<bool>();
        private int at;

        internal RoomTextReader(ArraySegment<byte> utf8)
        {
            text = utf8.Array;
            start = at = utf8.Offset;
            end = start + utf8.Count;
            if (utf8.Count >= 3 && text[at] == 0xEF && text[at + 1] == 0xBB && text[at + 2] == 0xBF) at += 3;
        }

        private bool IsAtCoreModel => TokenType == JsonToken.PropertyName && (string)Value == "coreModel";

        private int Next => at < end ? text[at] : -1;

        public override bool Read()
        {
            SkipBlanks();
            switch (CurrentState)
            {
                case State.Start:
                case State.Property:
                    return ReadValue();
                case State.ObjectStart:
                    return Next == '}' ? ReadEnd() : ReadName();
                case State.ArrayStart:
                    return Next == ']' ? ReadEnd() : ReadValue();
                case State.PostValue:
                    return ReadOn();
                default:
                    if (at < end) throw Wrong("nothing more");
                    return false;
            }
        }

        public override byte[] ReadAsBytes() => throw new NotSupportedException();

        public override DateTime? ReadAsDateTime() => throw new NotSupportedException();

        public override DateTimeOffset? ReadAsDateTimeOffset() => throw new NotSupportedException();

        public override decimal? ReadAsDecimal() => throw new NotSupportedException();

        public override int? ReadAsInt32() => throw new NotSupportedException();

        public override string ReadAsString() => throw new NotSupportedException();

        /// <summary>What is wrong, with the place: lines from 1, columns in bytes from 1.</summary>
        internal FormatException Wrong(string expected)
        {
            int line = 1, lineStart = start;
            for (int i = start; i < at; ++i)
            {
                if (text[i] != '\n') continue;
                ++line;
                lineStart = i + 1;
            }
            string place = "Line " + line + ", column " + (at - lineStart + 1) + " (" + Path + ")";
            return new FormatException(place + ": expected " + expected + ".");
        }

        /// <summary>Behind a value: what follows the comma, or the end.</summary>
        private bool ReadOn()
        {
            if (Next != ',') return ReadEnd();
            ++at;
            SkipBlanks();
            return insideObject.Peek() ? ReadName() : ReadValue();
        }

        private bool ReadEnd()
        {
            if (Next != (insideObject.Peek() ? '}' : ']')) throw Wrong("a comma or the end of the list");
            ++at;
            SetToken(insideObject.Pop() ? JsonToken.EndObject : JsonToken.EndArray);
            return true;
        }

        private bool ReadName()
        {
            if (Next != '"') throw Wrong("a key");
            string name = TakeString();
            SkipBlanks();
            Take(':', "a colon");
            return Set(JsonToken.PropertyName, name);
        }

        private bool ReadValue()
        {
            switch (Next)
            {
                case '{': return Open(JsonToken.StartObject);
                case '[': return Open(JsonToken.StartArray);
                case '"': return Set(JsonToken.String, IsAtCoreModel ? CutString() : TakeString());
                case 't': return Literal("true", JsonToken.Boolean, True);
                case 'f': return Literal("false", JsonToken.Boolean, False);
                case 'n': return Literal("null", JsonToken.Null, null);
                default: return Set(JsonToken.Float, TakeNumber());
            }
        }

        private bool Open(JsonToken token)
        {
            ++at;
            insideObject.Push(token == JsonToken.StartObject);
            return Set(token, null);
        }

        private bool Literal(string word, JsonToken token, object value)
        {
            foreach (char letter in word) Take(letter, word);
            return Set(token, value);
        }

        private bool Set(JsonToken token, object value)
        {
            SetToken(token, value);
            return true;
        }

        private object TakeNumber()
        {
            double number = NumberText.Take(text, ref at, end);
            if (double.IsNaN(number)) throw Wrong("a value");
            return number == 0 ? Zero : number == 1 ? One : number;
        }

        private string TakeString()
        {
            int from = at + 1, length = SkipString() - from - 1;
            string word = KnownWords.Find(text, from, length);
            if (word != null) return word;
            string content = Encoding.UTF8.GetString(text, from, length);
            if (content.IndexOf('\\') < 0) return content;
            return JsonEscapes.Resolve(content) ?? throw Wrong("escapes that JSON has");
        }

        private string CutString()
        {
            SkipString();
            return "";
        }

        /// <summary>To behind its closing quote, which it answers.</summary>
        private int SkipString()
        {
            int behind = CoreModel.SkipString(text, at, end);
            if (behind < 0) throw Wrong("a text with an end");
            return at = behind;
        }

        private void Take(char expected, string what)
        {
            if (Next != expected) throw Wrong(what);
            ++at;
        }

        private void SkipBlanks() => at = CoreModel.SkipBlanks(text, at, end);
    }
}
