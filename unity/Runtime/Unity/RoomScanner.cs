using System.IO;
using UnityEngine;

namespace Vantorel
{
    /// <summary>A <see cref="ScanSession"/> that lives as long as this component and is ticked once a frame.</summary>
    [DisallowMultipleComponent]
    public sealed class RoomScanner : MonoBehaviour
    {
        /// <summary>From Awake on. Null in a second scanner, whose Awake fails.</summary>
        public ScanSession Session { get; private set; }

        private static string InfoPlistPath
        {
            get
            {
#if UNITY_IOS && !UNITY_EDITOR
                return Path.Combine(Application.dataPath, "..", "Info.plist");
#else
                return null;
#endif
            }
        }

        private void Awake()
        {
            Session = new ScanSession(new ScanSettings
            {
                DocumentsFolder = Application.persistentDataPath,
                InfoPlistPath = InfoPlistPath,
            });
        }

        private void Update() => Session?.Tick();

        private void OnDestroy() => Session?.Dispose();
    }
}
