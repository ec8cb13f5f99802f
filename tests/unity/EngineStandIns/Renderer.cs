namespace UnityEngine
{
    public class Material : Object
    {
        public Color color { get; set; }
    }

    public class Renderer : Component
    {
        public Material material { get; } = new Material();
    }

    public class MeshRenderer : Renderer { }
}
