namespace Vantorel.Simulation
{
    /// <summary>What the device did beside the callbacks.</summary>
    public readonly struct DeviceObservation
    {
        internal DeviceObservation(string kind, string name, string value)
        {
            Kind = kind;
            Name = name;
            Value = value;
        }

        /// <summary>"console" or "present".</summary>
        public string Kind { get; }

        /// <summary>Of something presented: "share", "preview", "screenshot" or "recording"; else null.</summary>
        public string Name { get; }

        /// <summary>The console line, or the path that is shown.</summary>
        public string Value { get; }
    }
}
