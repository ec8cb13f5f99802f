using System;

namespace Vantorel.Editor
{
    /// <summary>After `skip` more calls of a platform call, the next `count` fail.</summary>
    [Serializable]
    public sealed class DeviceFault
    {
        /// <summary>As "writeFile"; the simulated device knows which there are.</summary>
        public string call = "";

        public int count = 1;

        public int skip;
    }
}
