using System;
using System.Threading.Tasks;
using Vantorel.Interop;

namespace Vantorel.Simulation
{
    /// <summary>
    /// The simulated iPhone under the library, in the Editor and on a desktop. Its time is virtual and stands still
    /// until it is advanced. There is one in a process: making it switches it on afresh and replaces the one before,
    /// disposing of it switches it off. Main thread, never from a callback. Whatever the device refuses is a
    /// SimulatedDeviceException. Where the app would stop on a phone, the device crashes alone: the library then does
    /// nothing, and Advance is refused, until the power cycle.
    /// </summary>
    public sealed class SimulatedDevice : IDisposable
    {
        private const double LongestWait = 600;

        // Native code holds only a function pointer; this field keeps what is behind it.
        private static readonly NativeDeviceObserver OnObserved = Observe;
        private static volatile Action<DeviceObservation> observer;
        private static SimulatedDevice current;
        private readonly string documentsFolder;

        /// <param name="documentsFolder">Where scans are saved; made when absent.</param>
        public SimulatedDevice(string documentsFolder)
        {
            this.documentsFolder = documentsFolder;
            current = this;
            Reset();
            Do(NativeDevice.vantorelDeviceSetDocumentsDirectory(Text(documentsFolder)));
        }

        /// <summary>Seconds since the power cycle. Any thread.</summary>
        public static double Time => NativeDevice.vantorelDeviceTime();

        /// <summary>Which of the device's threads is calling: "main", "delegate", "completion" or "render".</summary>
        public static string ThreadName => NativeText.Copy(NativeDevice.vantorelDeviceThread());

        /// <summary>An ARSession for <see cref="ScanOptions.SetARSession"/>, until the power cycle.</summary>
        public static IntPtr ARSession => NativeDevice.vantorelDeviceARSession();

        /// <summary>
        /// Hears what the device does beside the callbacks, on the thread where it happens; what it throws is lost. Null,
        /// and until one is set: console lines go to standard output, and nothing tells what is shown. A new device has
        /// none.
        /// </summary>
        public static void SetObserver(Action<DeviceObservation> value)
        {
            observer = value;
            NativeDevice.vantorelDeviceSetObserver(value == null ? null : OnObserved);
        }

        /// <summary>Until it is disposed of or another one is made.</summary>
        public bool IsOn => current == this;

        /// <summary>Settings of a session that lives by this device's time and folder.</summary>
        public ScanSettings NewSettings() => new ScanSettings { DocumentsFolder = documentsFolder, Clock = () => Time };

        /// <summary>As if the app had just started. A session that lives is over: its tasks are cancelled.</summary>
        public static void PowerCycle()
        {
            NativeCallbacks.LosePower();
            NativeDevice.vantorelDevicePowerCycle();
        }

        /// <summary>
        /// Forgets what scripts left behind that are no longer loaded: native code would call into them. From here on a
        /// crash is the device's own. For editors, once their scripts have loaded.
        /// </summary>
        public static void Reset()
        {
            SetObserver(null);
            NativeDevice.vantorelDeviceSetCrashContained(true);
            PowerCycle();
        }

        /// <summary>Threads run freely from the next power cycle on; the order of events is then open.</summary>
        public static void SetFreeRunning(bool value) => NativeDevice.vantorelDeviceSetFreeRunning(value);

        /// <summary>Real sleeps of up to this many microseconds whenever a thread hands over; 0 for none.</summary>
        public static void SetHandoverSleep(int microseconds, int seed)
        {
            NativeDevice.vantorelDeviceSetHandoverSleep((uint)microseconds, (uint)seed);
        }

        /// <summary>Runs what is due in the next seconds; 0: what is due now.</summary>
        public void Advance(double seconds) => Do(NativeDevice.vantorelDeviceAdvance(seconds));

        /// <summary>Advances until a running scan has been played and only periodic work is left.</summary>
        public void Settle() => Do(NativeDevice.vantorelDeviceSettle());

        /// <summary>The next run of a scan scans the room in this file.</summary>
        /// <param name="seconds">How long it takes.</param>
        /// <param name="rate">Updates a second.</param>
        public void ScanRoom(string path, double seconds = 10, double rate = 10)
        {
            Do(NativeDevice.vantorelDeviceSetRoom(Text(path), seconds, rate));
        }

        /// <summary>The next runs of a scan play the runs of this recording, in turn.</summary>
        public void PlayRecording(string path) => Do(NativeDevice.vantorelDeviceSetRecording(Text(path)));

        /// <summary>Records what the device delivers in the runs that begin from now on.</summary>
        public void StartRecording(string path) => Do(NativeDevice.vantorelDeviceRecord(Text(path)));

        /// <summary>Ends the recording.</summary>
        public void StopRecording() => Do(NativeDevice.vantorelDeviceRecord(null));

        /// <summary>The scan sees the room in this file at once.</summary>
        public void DeliverUpdate(string path) => Do(NativeDevice.vantorelDeviceDeliverUpdate(Text(path)));

        /// <param name="name">The platform's case, as "moveCloseToWall"; any other is one of a later system.</param>
        public void DeliverInstruction(string name) => Do(NativeDevice.vantorelDeviceDeliverInstruction(Text(name)));

        /// <summary>The platform ends the scan.</summary>
        /// <param name="description">Of the error; null for an end without one.</param>
        public void DeliverEnd(string description = null)
        {
            Do(NativeDevice.vantorelDeviceDeliverEnd(description == null ? null : Text(description)));
        }

        /// <summary>After `skip` more calls of the platform call, the next `count` fail.</summary>
        public void Fail(string call, int count = 1, int skip = 0)
        {
            Do(NativeDevice.vantorelDeviceFail(Text(call), (uint)count, (uint)skip));
        }

        /// <summary>What the device is, as ("ios", "16.4") or ("lidar", "off").</summary>
        public void SetOption(string name, string value)
        {
            Do(NativeDevice.vantorelDeviceSetOption(Text(name), Text(value)));
        }

        /// <summary>JSON of one value inside the library or the device; null for an unknown name.</summary>
        public string State(string name) => NativeText.Take(NativeDevice.vantorelDeviceState(Text(name)));

        /// <summary>Frames of the app: advances by `step` and ticks the session, until `seconds` have passed.</summary>
        public void Run(ScanSession session, double seconds, double step = 0.1)
        {
            double end = Time + seconds - step / 2;
            do
            {
                Advance(step);
                session.Tick();
            } while (Time < end);
        }

        /// <summary>Frames of the app until the task is done; what it throws is thrown.</summary>
        /// <exception cref="TimeoutException">600 s have passed.</exception>
        public T Run<T>(ScanSession session, Task<T> task, double step = 0.1)
        {
            Run(session, (Task)task, step);
            return task.Result;
        }

        /// <summary>Likewise.</summary>
        public void Run(ScanSession session, Task task, double step = 0.1)
        {
            double end = Time + LongestWait;
            while (!task.IsCompleted)
            {
                if (Time > end) throw new TimeoutException("The task was not done in " + LongestWait + " s.");
                Advance(step);
                session.Tick();
            }
            task.GetAwaiter().GetResult();
        }

        /// <summary>Switches the device off, unless another one has replaced it.</summary>
        public void Dispose()
        {
            if (!IsOn) return;
            current = null;
            PowerCycle();
            SetObserver(null);
        }

        [MonoPInvokeCallback(typeof(NativeDeviceObserver))]
        private static void Observe(IntPtr kind, IntPtr name, IntPtr value)
        {
            try
            {
                var seen = new DeviceObservation(NativeText.Copy(kind), NativeText.Copy(name), NativeText.Copy(value));
                observer?.Invoke(seen);
            }
            catch (Exception)
            {
                // Nothing may be thrown into native code.
            }
        }

        private static byte[] Text(string text) => NativeText.ToNative(text, nameof(text));

        private static void Do(IntPtr answer)
        {
            string message = NativeText.Take(answer);
            if (message != null) throw new SimulatedDeviceException(message);
        }
    }
}
