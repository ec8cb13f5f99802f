namespace Vantorel.Interop
{
    /// <summary>The library's callbacks without a text, less the three that it never calls.</summary>
    internal enum NativeEvent
    {
        DidStart,
        DidEnd,
        CaptureSessionDidStart,
        CaptureSessionDidEnd,
        CaptureSessionDidUpdate,
    }
}
