namespace UnityEngine
{
    public class Object
    {
        public HideFlags hideFlags { get; set; }

        public bool IsDestroyed { get; private set; }

        public static void Destroy(Object gone) => gone.IsDestroyed = true;
    }
}
