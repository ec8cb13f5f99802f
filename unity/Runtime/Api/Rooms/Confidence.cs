namespace Vantorel
{
    /// <summary>How sure the phone is of an element.</summary>
    public enum Confidence
    {
        /// <summary>A case of a later system; its word is kept beside it.</summary>
        Unknown,
        Low,
        Medium,
        High,
    }
}
