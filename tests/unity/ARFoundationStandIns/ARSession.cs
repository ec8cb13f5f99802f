using UnityEngine.XR.ARSubsystems;

namespace UnityEngine.XR.ARFoundation
{
    public sealed class ARSession : MonoBehaviour
    {
        public XRSessionSubsystem subsystem { get; set; }
    }
}
