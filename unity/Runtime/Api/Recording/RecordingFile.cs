using System;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;

namespace Vantorel
{
    /// <summary>Writes the lines of a recording, each at once, within the limits of the format.</summary>
    internal sealed class RecordingFile : IDisposable
    {
        private const long MostBytes = 1L << 30;
        private const int MostLines = 1000000;
        private const double LongestRun = 3600;

        private readonly FileStream file;
        private readonly MemoryStream line = new MemoryStream();
        private byte[] lastCoreModel = new byte[0];
        private double lastTime;
        private int lines;

        internal RecordingFile(string path)
        {
            file = new FileStream(path, FileMode.Create);
            Write("{\"format\":\"vantorel-recording\",\"version\":1}");
            EndLine();
        }

        internal void WriteRun()
        {
            lastTime = 0;
            Begin(0, "run");
            Write("}");
            EndLine();
        }

        internal void WriteInstruction(double time, string word)
        {
            Begin(time, "instruction");
            Write(",\"name\":\"" + word + "\"}");
            EndLine();
        }

        /// <param name="pose">The camera's pose as the library gives it; null without one.</param>
        internal void WriteUpdate(double time, float[] pose, ArraySegment<byte> room)
        {
            Begin(time, "update");
            if (pose != null) Write(",\"camera\":[" + string.Join(",", RoomPlanCamera(pose).Select(Text)) + "]");
            WriteRoom(room);
            Write("}");
            EndLine();
        }

        public void Dispose() => file.Dispose();

        private void WriteRoom(ArraySegment<byte> room)
        {
            int start = room.Offset, end = room.Offset + room.Count;
            var coreModel = CoreModel.Find(room.Array, start, end);
            bool isSame = coreModel is CoreModel found && IsLast(room.Array, found) &&
                          HasMemberBehind(room.Array, found, end);
            if (isSame) Write(",\"sameCoreModel\":true");
            Write(",\"room\":");
            if (coreModel is CoreModel model)
            {
                // The one that the text has, or none and what follows its comma.
                CompactJson.Write(Piece(room.Array, start, isSame ? model.KeyStart : model.ValueEnd), line);
                start = isSame ? CoreModel.SkipBlanks(room.Array, model.ValueEnd, end) + 1 : model.ValueEnd;
                if (!isSame) lastCoreModel = Piece(room.Array, model.ValueStart, model.ValueEnd).ToArray();
            }
            CompactJson.Write(Piece(room.Array, start, end), line);
        }

        private bool IsLast(byte[] text, CoreModel model)
        {
            int length = model.ValueEnd - model.ValueStart;
            if (length != lastCoreModel.Length) return false;
            for (int i = 0; i < length; ++i)
                if (text[model.ValueStart + i] != lastCoreModel[i]) return false;
            return true;
        }

        /// <summary>As in every text of the library, whose keys are sorted.</summary>
        private static bool HasMemberBehind(byte[] text, CoreModel model, int end)
        {
            int behind = CoreModel.SkipBlanks(text, model.ValueEnd, end);
            return behind < end && text[behind] == ',';
        }

        private static ArraySegment<byte> Piece(byte[] text, int start, int end)
        {
            return new ArraySegment<byte>(text, start, end - start);
        }

        /// <summary>The platform's pose: the library's signs, given a second time, are taken back.</summary>
        private static float[] RoomPlanCamera(float[] pose)
        {
            var platform = (float[])pose.Clone();
            foreach (int i in new[] { 0, 1, 4, 5, 8, 9, 14 }) platform[i] = -platform[i];
            return platform;
        }

        private static string Text(float number) => number.ToString("R", CultureInfo.InvariantCulture);

        private void Begin(double time, string what)
        {
            if (time > LongestRun) throw new IOException("a run may last an hour");
            lastTime = Math.Max(time, lastTime);
            string seconds = lastTime.ToString("0.#########", CultureInfo.InvariantCulture);
            Write("{\"time\":" + seconds + ",\"event\":\"" + what + "\"");
        }

        private void Write(string text)
        {
            byte[] bytes = Encoding.UTF8.GetBytes(text);
            line.Write(bytes, 0, bytes.Length);
        }

        private void EndLine()
        {
            line.WriteByte((byte)'\n');
            if (file.Length + line.Length > MostBytes) throw new IOException("a recording may have 1 GiB");
            if (++lines > MostLines) throw new IOException("a recording may have a million lines");
            line.WriteTo(file);
            file.Flush();
            line.SetLength(0);
        }
    }
}
