namespace UnityEngine
{
    public struct Color
    {
        public float r, g, b;

        public Color(float r, float g, float b)
        {
            this.r = r;
            this.g = g;
            this.b = b;
        }

        public static Color white => new Color(1, 1, 1);
    }
}
