using System.Collections.Generic;

namespace Vantorel
{
    /// <summary>A piece of furniture: a box in RoomPlan's space. See <see cref="UnitySpace"/>.</summary>
    public sealed class RoomObject
    {
        private static readonly IReadOnlyDictionary<string, string> NoAttributes = new Dictionary<string, string>();

        /// <summary>A UUID, the same in all updates.</summary>
        public string Identifier { get; internal set; }

        /// <summary>Another object or a wall; null without one.</summary>
        public string ParentIdentifier { get; internal set; }

        public Case<ObjectCategory> Category { get; internal set; }

        public Case<Confidence> Confidence { get; internal set; }

        /// <summary>Width, height and depth in metres.</summary>
        public float[] Dimensions { get; internal set; }

        /// <summary>The pose of the middle, 16 numbers column by column.</summary>
        public float[] Transform { get; internal set; }

        /// <summary>As "ChairType": "dining". Empty in rooms of iOS 16.</summary>
        public IReadOnlyDictionary<string, string> Attributes { get; internal set; } = NoAttributes;

        /// <summary>Null in rooms of iOS 16.</summary>
        public int? Story { get; internal set; }
    }
}
