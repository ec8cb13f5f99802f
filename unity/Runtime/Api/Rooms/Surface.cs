using System;
using System.Collections.Generic;

namespace Vantorel
{
    /// <summary>
    /// A wall, door, window, opening or floor, in RoomPlan's space: metres, right-handed, y up. See
    /// <see cref="UnitySpace"/>.
    /// </summary>
    public sealed class Surface
    {
        private static readonly float[][] NoCorners = new float[0][];
        private static readonly Case<SurfaceEdge>[] NoEdges = new Case<SurfaceEdge>[0];

        /// <summary>A UUID, the same in all updates.</summary>
        public string Identifier { get; internal set; }

        /// <summary>The wall that a door or window belongs to; null without one.</summary>
        public string ParentIdentifier { get; internal set; }

        public Case<SurfaceCategory> Category { get; internal set; }

        /// <summary>Of a door; null for all else.</summary>
        public bool? IsOpen { get; internal set; }

        public Case<Confidence> Confidence { get; internal set; }

        /// <summary>Width, height and depth in metres.</summary>
        public float[] Dimensions { get; internal set; }

        /// <summary>The middle's pose, 16 numbers column by column: x along the width, y up, z the normal.</summary>
        public float[] Transform { get; internal set; }

        /// <summary>In the surface's own plane, three numbers each; empty for a rectangle.</summary>
        public IReadOnlyList<float[]> PolygonCorners { get; internal set; } = NoCorners;

        /// <summary>The edges that were seen; empty in a single room, as far as is known.</summary>
        public IReadOnlyList<Case<SurfaceEdge>> CompletedEdges { get; internal set; } = NoEdges;

        /// <summary>The platform's JSON of a curved wall's curve; null for a flat one.</summary>
        public string CurveJson { get; internal set; }

        /// <summary>Null in rooms of iOS 16.</summary>
        public int? Story { get; internal set; }
    }
}
