using System;

namespace UnityEngine
{
    public sealed class DisallowMultipleComponent : Attribute { }
}
