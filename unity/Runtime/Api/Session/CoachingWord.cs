namespace Vantorel
{
    /// <summary>What the phone asks of the person who scans.</summary>
    public enum CoachingWord
    {
        /// <summary>A word of a later version; see <see cref="Coaching.Text"/>.</summary>
        Unknown,

        /// <summary>An instruction that the library has no word for.</summary>
        None,

        /// <summary>All is well.</summary>
        Normal,
        MoveCloseToWall,
        MoveAwayFromWall,
        SlowDown,
        TurnOnLight,

        /// <summary>There is too little to see, as on a white wall.</summary>
        LowTexture,
    }
}
