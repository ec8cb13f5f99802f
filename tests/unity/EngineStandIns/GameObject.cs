using System;
using System.Collections.Generic;
using System.Linq;

namespace UnityEngine
{
    public sealed class GameObject : Object
    {
        private readonly List<Component> components = new List<Component>();

        public GameObject() { transform = AddComponent<Transform>(); }

        /// <summary>All that were ever made from primitives.</summary>
        public static List<GameObject> Primitives { get; } = new List<GameObject>();

        public Transform transform { get; }

        public static GameObject CreatePrimitive(PrimitiveType type)
        {
            var primitive = new GameObject();
            primitive.AddComponent<MeshFilter>();
            primitive.AddComponent<BoxCollider>();
            primitive.AddComponent<MeshRenderer>();
            Primitives.Add(primitive);
            return primitive;
        }

        public T AddComponent<T>() where T : Component, new()
        {
            foreach (RequireComponent need in typeof(T).GetCustomAttributes(typeof(RequireComponent), false))
                Add(need.Required);
            return (T)Add(typeof(T));
        }

        public T GetComponent<T>() where T : Component => components.OfType<T>().FirstOrDefault();

        private Component Add(Type type)
        {
            var component = (Component)Activator.CreateInstance(type);
            component.gameObject = this;
            components.Add(component);
            if (component is MonoBehaviour script) script.Send("Awake");
            return component;
        }
    }
}
