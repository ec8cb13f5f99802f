using UnityEngine;

namespace Unity.XR.CoreUtils
{
    public sealed class XROrigin : MonoBehaviour
    {
        public Transform TrackablesParent { get; set; }
    }
}
