namespace Vantorel
{
    /// <summary>What a part of a home is used for.</summary>
    public enum SectionLabel
    {
        /// <summary>A case of a later system; its word is kept beside it.</summary>
        Unknown,
        LivingRoom,
        Bedroom,
        Bathroom,
        Kitchen,
        DiningRoom,
        Unidentified,
    }
}
