using System;

namespace UnityEngine
{
    public sealed class RequireComponent : Attribute
    {
        public RequireComponent(Type required) { Required = required; }

        public Type Required { get; }
    }
}
