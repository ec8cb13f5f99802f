namespace Vantorel
{
    /// <summary>What a surface is.</summary>
    public enum SurfaceCategory
    {
        /// <summary>A case of a later system; its word is kept beside it.</summary>
        Unknown,
        Wall,
        Door,
        Window,
        Opening,
        Floor,
    }
}
