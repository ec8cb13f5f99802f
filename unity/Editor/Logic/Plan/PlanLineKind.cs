namespace Vantorel.Editor
{
    internal enum PlanLineKind
    {
        Wall,
        Door,
        Window,
        Opening,
        Object,
    }
}
