namespace Vantorel.Editor
{
    /// <summary>A line of a floor plan, from (X0, Y0) to (X1, Y1).</summary>
    internal readonly struct PlanLine
    {
        internal PlanLine(PlanLineKind kind, float x0, float y0, float x1, float y1)
        {
            Kind = kind;
            X0 = x0;
            Y0 = y0;
            X1 = x1;
            Y1 = y1;
        }

        internal PlanLineKind Kind { get; }

        internal float X0 { get; }

        internal float Y0 { get; }

        internal float X1 { get; }

        internal float Y1 { get; }
    }
}
