namespace Vantorel
{
    /// <summary>What a piece of furniture is.</summary>
    public enum ObjectCategory
    {
        /// <summary>A case of a later system; its word is kept beside it.</summary>
        Unknown,
        Storage,
        Refrigerator,
        Stove,
        Bed,
        Sink,
        WasherDryer,
        Toilet,
        Bathtub,
        Oven,
        Dishwasher,
        Table,
        Sofa,
        Chair,
        Fireplace,
        Television,
        Stairs,
    }
}
