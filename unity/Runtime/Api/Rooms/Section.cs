namespace Vantorel
{
    /// <summary>A part of a home with a use of its own.</summary>
    public sealed class Section
    {
        public Case<SectionLabel> Label { get; internal set; }

        /// <summary>Three numbers in metres, in RoomPlan's space.</summary>
        public float[] Center { get; internal set; }

        public int? Story { get; internal set; }
    }
}
