using System;

namespace Vantorel
{
    /// <summary>One coaching instruction.</summary>
    public readonly struct Coaching
    {
        /// <param name="text">The library's word, as "SlowDown".</param>
        public Coaching(string text)
        {
            Text = text;
            Word = Enum.TryParse(text, out CoachingWord word) && word.ToString() == text ? word : CoachingWord.Unknown;
        }

        /// <summary>The word, or Unknown.</summary>
        public CoachingWord Word { get; }

        /// <summary>The library's word as it came.</summary>
        public string Text { get; }

        public override string ToString() => Text;
    }
}
