using System;
using System.IO;
using NUnit.Framework;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    /// <summary>A test with a simulated device, switched on afresh, and a session on it.</summary>
    public abstract class DeviceTest
    {
        protected string Folder { get; private set; }

        protected SimulatedDevice Device { get; private set; }

        protected ScanSession Session { get; set; }

        [SetUp]
        public void SwitchOn()
        {
            Folder = Path.Combine(Path.GetTempPath(), "vantorel-" + Guid.NewGuid());
            Device = new SimulatedDevice(Folder);
            Session = new ScanSession(Device.NewSettings());
        }

        [TearDown]
        public void SwitchOff()
        {
            Device.Dispose();
            Directory.Delete(Folder, true);
        }

        protected void Start() => Device.Run(Session, Session.StartAsync());

        protected T Run<T>(System.Threading.Tasks.Task<T> task) => Device.Run(Session, task);

        protected void Run(System.Threading.Tasks.Task task) => Device.Run(Session, task);
    }
}
