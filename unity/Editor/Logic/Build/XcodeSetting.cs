namespace Vantorel.Editor
{
    /// <summary>A build setting of a target.</summary>
    internal readonly struct XcodeSetting
    {
        internal XcodeSetting(XcodeTarget target, string name, string value, bool isAdded)
        {
            Target = target;
            Name = name;
            Value = value;
            IsAdded = isAdded;
        }

        internal XcodeTarget Target { get; }

        internal string Name { get; }

        internal string Value { get; }

        /// <summary>To the list that is there, instead of replacing it.</summary>
        internal bool IsAdded { get; }
    }
}
