namespace UnityEngine
{
    public struct Rect
    {
        public float x, y, width, height;
    }
}
