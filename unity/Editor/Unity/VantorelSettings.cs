using UnityEditor;

namespace Vantorel.Editor
{
    /// <summary>What Project Settings > Vantorel shows; kept in ProjectSettings/Vantorel.asset.</summary>
    [FilePath("ProjectSettings/Vantorel.asset", FilePathAttribute.Location.ProjectFolder)]
    public sealed class VantorelSettings : ScriptableSingleton<VantorelSettings>
    {
        public DeviceSettings device = new DeviceSettings();

        public IosBuildSettings iosBuild = new IosBuildSettings();

        public void Save() => Save(true);
    }
}
