namespace UnityEngine
{
    public static class Application
    {
        public static string persistentDataPath { get; set; } = "";

        public static string dataPath { get; set; } = "";

        public static bool isPlaying { get; set; }
    }
}
