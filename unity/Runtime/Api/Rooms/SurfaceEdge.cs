namespace Vantorel
{
    /// <summary>An edge of a surface.</summary>
    public enum SurfaceEdge
    {
        /// <summary>A case of a later system; its word is kept beside it.</summary>
        Unknown,
        Top,
        Right,
        Bottom,
        Left,
    }
}
