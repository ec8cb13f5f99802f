using System.Collections.Generic;

namespace Vantorel
{
    /// <summary>What a room and a structure have in common. Lists that the text lacks are empty.</summary>
    public abstract class RoomElements
    {
        private protected RoomElements() { }

        /// <summary>1 from iOS 16, else 2.</summary>
        public int Version { get; internal set; }

        public IReadOnlyList<Surface> Walls { get; internal set; } = new Surface[0];

        public IReadOnlyList<Surface> Doors { get; internal set; } = new Surface[0];

        public IReadOnlyList<Surface> Windows { get; internal set; } = new Surface[0];

        public IReadOnlyList<Surface> Openings { get; internal set; } = new Surface[0];

        public IReadOnlyList<Surface> Floors { get; internal set; } = new Surface[0];

        public IReadOnlyList<RoomObject> Objects { get; internal set; } = new RoomObject[0];

        public IReadOnlyList<Section> Sections { get; internal set; } = new Section[0];
    }
}
