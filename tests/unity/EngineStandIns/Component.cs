namespace UnityEngine
{
    public class Component : Object
    {
        private GameObject owner;

        public GameObject gameObject
        {
            get => owner ?? (owner = new GameObject());
            internal set => owner = value;
        }

        public Transform transform => gameObject.transform;

        public T GetComponent<T>() where T : Component => gameObject.GetComponent<T>();
    }
}
