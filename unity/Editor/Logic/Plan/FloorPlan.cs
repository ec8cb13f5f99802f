using System;
using System.Collections.Generic;
using System.Linq;

namespace Vantorel.Editor
{
    /// <summary>
    /// A room from above, in Unity's space: metres, x to the right, z up the page. Curved walls are drawn straight.
    /// </summary>
    internal static class FloorPlan
    {
        internal static List<PlanLine> Of(RoomElements room)
        {
            var lines = new List<PlanLine>();
            foreach (var piece in room.Objects) AddBox(lines, piece);
            AddSurfaces(lines, PlanLineKind.Wall, room.Walls);
            AddSurfaces(lines, PlanLineKind.Opening, room.Openings);
            AddSurfaces(lines, PlanLineKind.Window, room.Windows);
            AddSurfaces(lines, PlanLineKind.Door, room.Doors);
            return lines;
        }

        /// <summary>
        /// The lines as large as they fit into a page of that size, in its middle, with a margin; y now counts down from
        /// the page's top.
        /// </summary>
        internal static List<PlanLine> Fit(List<PlanLine> plan, float width, float height, float margin)
        {
            if (plan.Count == 0) return plan;
            float[] xs = plan.SelectMany(line => new[] { line.X0, line.X1 }).ToArray();
            float[] ys = plan.SelectMany(line => new[] { line.Y0, line.Y1 }).ToArray();
            float scale = Math.Min(Ratio(width - 2 * margin, xs), Ratio(height - 2 * margin, ys));
            float left = width / 2 - Middle(xs) * scale, top = height / 2 + Middle(ys) * scale;
            Func<float, float> across = x => left + x * scale, down = y => top - y * scale;
            return plan.ConvertAll(
                line => new PlanLine(line.Kind, across(line.X0), down(line.Y0), across(line.X1), down(line.Y1)));
        }

        private static float Middle(float[] numbers) => (numbers.Min() + numbers.Max()) / 2;

        /// <summary>At least a millimetre of room, so that a single line, as wide as nothing, can be drawn.</summary>
        private static float Ratio(float page, float[] numbers) => page / Math.Max(numbers.Max() - numbers.Min(), 0.001f);

        private static void AddSurfaces(List<PlanLine> lines, PlanLineKind kind, IEnumerable<Surface> surfaces)
        {
            foreach (var surface in surfaces)
            {
                float half = surface.Dimensions[0] / 2;
                Add(lines, kind, surface.Transform, -half, 0, half, 0);
            }
        }

        private static void AddBox(List<PlanLine> lines, RoomObject piece)
        {
            float x = piece.Dimensions[0] / 2, z = piece.Dimensions[2] / 2;
            Add(lines, PlanLineKind.Object, piece.Transform, -x, -z, x, -z);
            Add(lines, PlanLineKind.Object, piece.Transform, x, -z, x, z);
            Add(lines, PlanLineKind.Object, piece.Transform, x, z, -x, z);
            Add(lines, PlanLineKind.Object, piece.Transform, -x, z, -x, -z);
        }

        /// <summary>A line between two points (x, 0, z) of an element's own space.</summary>
        private static void Add(List<PlanLine> lines, PlanLineKind kind, float[] pose, float x0, float z0, float x1,
                                float z1)
        {
            lines.Add(new PlanLine(kind, Along(pose, 0, x0, z0), -Along(pose, 2, x0, z0), Along(pose, 0, x1, z1),
                                   -Along(pose, 2, x1, z1)));
        }

        /// <summary>One coordinate of a point in the room's space.</summary>
        private static float Along(float[] pose, int row, float x, float z)
        {
            return pose[row] * x + pose[8 + row] * z + pose[12 + row];
        }
    }
}
