namespace UnityEngine
{
    public class ScriptableObject : Object { }
}
