using System.Reflection;

namespace UnityEngine
{
    public class MonoBehaviour : Component
    {
        /// <summary>Calls one of the messages that the engine sends, as "Update", if there is one.</summary>
        public void Send(string message)
        {
            const BindingFlags Any = BindingFlags.Instance | BindingFlags.Public | BindingFlags.NonPublic;
            GetType().GetMethod(message, Any)?.Invoke(this, null);
        }
    }
}
