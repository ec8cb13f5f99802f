using System.Collections.Generic;

namespace UnityEngine
{
    public static class Debug
    {
        public static List<string> Lines { get; } = new List<string>();

        public static void Log(object message) => Lines.Add(message.ToString());

        public static void LogError(object message) => Lines.Add("Error: " + message);
    }
}
