using System;

namespace Vantorel.Interop
{
    /// <summary>Known to IL2CPP by its name: native code may call the method.</summary>
    [AttributeUsage(AttributeTargets.Method)]
    internal sealed class MonoPInvokeCallbackAttribute : Attribute
    {
        public MonoPInvokeCallbackAttribute(Type delegateType) { DelegateType = delegateType; }

        public Type DelegateType { get; }
    }
}
