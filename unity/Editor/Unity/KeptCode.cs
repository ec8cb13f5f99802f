using System.IO;
using UnityEditor.Build;
using UnityEditor.Build.Reporting;
using UnityEditor.UnityLinker;

namespace Vantorel.Editor
{
    /// <summary>Hands the package's link.xml to Unity's linker, which by itself reads those below Assets alone.</summary>
    internal sealed class KeptCode : IUnityLinkerProcessor
    {
        public int callbackOrder => 0;

        public string GenerateAdditionalLinkXmlFile(BuildReport report, UnityLinkerBuildPipelineData data)
        {
            string path = Path.Combine(Package.Folder, "Runtime", "link.xml");
            return File.Exists(path) ? path : null;
        }
    }
}
