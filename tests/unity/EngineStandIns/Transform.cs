namespace UnityEngine
{
    public class Transform : Component
    {
        public Transform parent { get; private set; }

        public Vector3 localPosition { get; set; }

        public Quaternion localRotation { get; set; }

        public Vector3 localScale { get; set; }

        public void SetParent(Transform newParent, bool worldPositionStays) => parent = newParent;
    }
}
