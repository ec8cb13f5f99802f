namespace Vantorel.Editor
{
    /// <summary>What a scan sees in Play.</summary>
    public enum ScanSource
    {
        Nothing,
        Rooms,
        Recording,
    }
}
