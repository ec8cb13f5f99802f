namespace UnityEngine
{
    public enum PrimitiveType
    {
        Cube = 3,
    }

    public class MeshFilter : Component { }

    public class BoxCollider : Component { }
}
