using System;

namespace Vantorel.Simulation
{
    /// <summary>The simulated device refused a call; nothing has changed.</summary>
    public sealed class SimulatedDeviceException : Exception
    {
        public SimulatedDeviceException(string message) : base(message) { }
    }
}
