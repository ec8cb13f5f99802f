namespace UnityEngine
{
    public static class Time
    {
        public static int frameCount { get; set; }

        public static float unscaledDeltaTime { get; set; }
    }
}
