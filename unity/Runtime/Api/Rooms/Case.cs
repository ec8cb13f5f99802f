using System;

namespace Vantorel
{
    /// <summary>An enumeration's case with its word, so that cases of later systems are not lost.</summary>
    public readonly struct Case<T> where T : struct
    {
        private readonly string word;

        internal Case(T value, string word)
        {
            Value = value;
            this.word = word;
        }

        /// <summary>The case, or Unknown.</summary>
        public T Value { get; }

        /// <summary>The platform's word, as "washerDryer"; empty without one.</summary>
        public string Word => word ?? "";

        /// <summary>So that a case can be compared and switched on.</summary>
        public static implicit operator T(Case<T> from) => from.Value;

        public override string ToString() => Word;
    }
}
