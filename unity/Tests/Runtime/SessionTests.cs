using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Threading;
using System.Threading.Tasks;
using NUnit.Framework;
using Vantorel.Interop;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    [TestFixture]
    public class SessionTests : DeviceTest
    {
        [Test]
        public void ThereIsOneSessionAtATime()
        {
            var refusal = Assert.Throws<InvalidOperationException>(() => new ScanSession(Device.NewSettings()));
            StringAssert.Contains("ScanSession already", refusal.Message);
            Start();
            Session.Dispose();
            Session = new ScanSession(Device.NewSettings());
            Assert.IsFalse(Session.IsInitialized);
            Start();
            Assert.AreEqual("true", Device.State("isScanning"));
        }

        [Test]
        public void EventsComeWithTheTickAndNotBefore()
        {
            int starts = 0;
            Session.Initialized += () => ++starts;
            var initialise = Session.InitializeAsync();
            Device.Advance(0);
            Assert.AreEqual(0, starts);
            Assert.IsFalse(initialise.IsCompleted || Session.IsInitialized);
            Session.Tick();
            Assert.AreEqual(1, starts);
            Assert.IsTrue(initialise.IsCompleted && Session.IsInitialized);
            Session.Tick();
            Assert.AreEqual(1, starts);
        }

        [Test]
        public void ASessionDisposedInMidUpdateIsSilent()
        {
            Device.ScanRoom(TestFiles.Flat);
            Start();
            int updates = 0, coached = 0;
            Session.InstructionReceived += word => ++coached;
            Session.RoomUpdated += () =>
            {
                ++updates;
                Session.Dispose();
            };
            Device.Advance(3);  // updates and coaching words wait
            Session.Tick();
            int coachedBefore = coached;
            Device.Run(Session, 3);
            Assert.AreEqual(1, updates);
            Assert.AreEqual(coachedBefore, coached);
            Assert.AreEqual("false", Device.State("isPresent"));
            Assert.Throws<ObjectDisposedException>(() => Session.PauseScanning());
        }

        [Test]
        public void ACallbackThatWasOnItsWayIntoADisposedSessionIsDropped()
        {
            var inbox = new Inbox();
            inbox.OnEvent(NativeEvent.DidStart);
            inbox.Close();
            inbox.OnEvent(NativeEvent.DidEnd);
            inbox.OnFailure(new InvalidDataException());
            Assert.IsFalse(inbox.TryTake(out _));
        }

        [Test]
        public void AnAwaitGoesOnInsideTheTickAsUnitysContextHasIt()
        {
            var context = new PostingContext();
            SynchronizationContext.SetSynchronizationContext(context);
            try
            {
                bool isInTick = false, wentOnInTick = false;
                Func<Task> app = async () =>
                {
                    await Session.StartAsync();
                    wentOnInTick = isInTick;
                };
                var running = app();
                for (int i = 0; i < 5 && !running.IsCompleted; ++i)
                {
                    Device.Advance(0.1);
                    isInTick = true;
                    Session.Tick();
                    isInTick = false;
                }
                Assert.IsTrue(wentOnInTick);
                Assert.AreEqual(0, context.Posts);
            }
            finally
            {
                SynchronizationContext.SetSynchronizationContext(null);
            }
        }

        [Test]
        public void DisposeCancelsWhatWaits()
        {
            var start = Session.StartAsync();
            Session.Dispose();
            Assert.IsTrue(start.IsCanceled);
            Session.Dispose();
        }

        [Test]
        public void WhoeverIsCancelledMayMakeTheNextSession()
        {
            Func<Task> app = async () =>
            {
                try
                {
                    await Session.StartAsync();
                }
                catch (TaskCanceledException)
                {
                    Session = new ScanSession(Device.NewSettings());
                    await Session.StartAsync();
                }
            };
            var running = app();
            Session.Dispose();
            Run(running);
            Assert.IsTrue(Session.IsScanning);
        }

        [Test]
        public void ASessionDisposedWhileItStartsLeavesTheLibraryDown()
        {
            Session.StartAsync();
            Session.Dispose();
            Device.Advance(1);
            Assert.AreEqual("false", Device.State("isPresent"));
        }

        [TestCase(false)]
        [TestCase(true)]
        public void AScanThatStartsAfterItsSessionIsStopped(bool hasNextSession)
        {
            ResumeInVain(3);
            Session.Dispose();
            if (hasNextSession) Session = new ScanSession(Device.NewSettings());
            var heard = new List<string>();
            Session.ScanStarted += () => heard.Add("started");
            Session.ScanEnded += () => heard.Add("ended");
            if (hasNextSession) Run(Session.InitializeAsync());
            Device.SetOption("tracking", "normal");
            Device.Run(Session, 3);
            CollectionAssert.IsEmpty(heard);
            Assert.AreEqual("false", Device.State("isScanning"));
            Assert.AreEqual("false", Device.State("captureSession.isRunning"));
        }

        [Test]
        public void AScanThatStartsAfterAShutDownIsStopped()
        {
            ResumeInVain(61);
            Run(Session.ShutDownAsync());
            Device.SetOption("tracking", "normal");
            Device.Run(Session, 3);
            Assert.IsFalse(Session.IsScanning);
            Assert.AreEqual("false", Device.State("isScanning"));
        }

        [Test]
        public void AStartThatComesLateIntoAnotherScanIsNoStart()
        {
            ResumeInVain(61);
            int starts = 0;
            Session.ScanStarted += () => ++starts;
            Start();
            Device.SetOption("tracking", "normal");
            Device.Run(Session, 3);
            Assert.AreEqual(1, starts);
            Run(Session.StopAsync());
        }

        [Test]
        public void TheNextSessionHearsNothingOfTheOneBefore()
        {
            Session.Options.ShowsPlatformScanView = true;
            Start();
            Session.Dispose();
            Session = new ScanSession(Device.NewSettings());
            var heard = new List<string>();
            Session.Initialized += () => heard.Add("started");
            Session.ShutDown += () => heard.Add("ended");
            Start();
            CollectionAssert.AreEqual(new[] { "started" }, heard);
            StringAssert.DoesNotContain("roomCaptureView", Device.State("view.subviews"), "its view went with it");
            Run(Session.ShutDownAsync());
            CollectionAssert.AreEqual(new[] { "started", "ended" }, heard);
        }

        [Test]
        public void AnUpdateOnItsWayWhenItsSessionGoesIsForNobody()
        {
            Start();
            Session.Dispose();
            Device.DeliverUpdate(TestFiles.Flat);  // queued behind the library's end
            Session = new ScanSession(Device.NewSettings());
            Session.RoomUpdated += () => Assert.Fail("a room of the session before");
            Run(Session.InitializeAsync());
            Assert.AreNotEqual("\"\"", Device.State("roomFinalStringResults"), "the library published it");
            Assert.IsNull(Session.RoomText);
        }

        [Test]
        public void ACallbackIsNeverLostToAnExceptionOfTheApp()
        {
            Device.ScanRoom(TestFiles.Flat);
            var events = new List<string>();
            Session.Initialized += () => events.Add("started");
            Session.Initialized += () => throw new InvalidDataException("the app's own fault");
            Session.ScanStarted += () => events.Add("scan started");
            var start = Session.StartAsync();
            Device.Advance(0);
            Assert.Throws<InvalidDataException>(() => Session.Tick());
            Run(start);
            CollectionAssert.AreEqual(new[] { "started", "scan started" }, events);
        }

        [Test]
        public void AStartIsToldThoughTheAppThrowsAndTheScanEndsAtOnce()
        {
            Session.ScanStarted += () => throw new InvalidDataException("the app's own fault");
            Run(Session.InitializeAsync());
            var start = Session.StartAsync();
            Native.stopCaptureSession();
            Assert.Throws<InvalidDataException>(() => Session.Tick());
            Assert.AreEqual(TaskStatus.RanToCompletion, start.Status);
            Session.Tick();
            Assert.IsFalse(Session.IsScanning);
        }

        [Test]
        public void AnotherThreadIsRefused()
        {
            Assert.Throws<InvalidOperationException>(() => Task.Run(() => Session.Tick()).GetAwaiter().GetResult());
            Assert.Throws<InvalidOperationException>(() => Task.Run(() => Session.StartAsync()).GetAwaiter().GetResult());
        }

        [Test]
        public void APowerCycleEndsASession()
        {
            Start();
            var stop = Session.StopAsync();
            SimulatedDevice.PowerCycle();
            Assert.IsTrue(stop.IsCanceled);
            Session.Tick();
            Session.Dispose();
            Assert.AreEqual("false", Device.State("isPresent"));
        }

        [Test]
        public void OptionsReachTheLibraryWithTheStart()
        {
            Session.Options.ShowsPlatformScanView = true;
            Session.Options.ShowsCoachingOverlay = false;
            Session.Options.ShowsMiniatureModel = false;
            Session.Options.ForwardsCoaching = false;
            Assert.AreEqual("false", Device.State("isDefaultScanEnabled"));
            Start();
            var names = new[]
            {
                "isDefaultScanEnabled", "isCoachingEnabled", "isDefaultMiniatureModelEnabled", "isInstructionEnabled",
            };
            CollectionAssert.AreEqual(new[] { "true", "false", "false", "false" }, names.Select(Device.State));
            Assert.Throws<InvalidOperationException>(() => Session.Options.UsesOwnARSession = true);
            Session.Options.ShowsPlatformScanView = false;
            Run(Session.InitializeAsync());
            Run(Session.StopAsync());
            StringAssert.DoesNotContain("roomCaptureView", Device.State("view.subviews"), "a stop finds its scan's view");
        }

        [Test]
        public void AnAppMayBringItsOwnARSession()
        {
            Session.Options.UsesOwnARSession = true;
            Session.Options.SetARSession(SimulatedDevice.ARSession);
            Start();
            Assert.AreEqual("true", Device.State("captureSession.usesHostARSession"));
            Session.Dispose();
            Session = new ScanSession(Device.NewSettings());
            Start();  // the other way: the dispose before has found the switch as it was
            Assert.AreEqual("false", Device.State("isCustomXREnabled"));
        }

        [Test]
        public void CallbacksOfThreadsThatRunFreelyComeOnTheMainThread()
        {
            SimulatedDevice.SetFreeRunning(true);
            SwitchOff();
            SwitchOn();
            try
            {
                Device.ScanRoom(TestFiles.Flat, seconds: 5, rate: 100);
                var threads = new HashSet<int>();
                var native = new ThreadTap();
                Session.Tap = native;
                int updates = 0, words = 0;
                Session.RoomUpdated += () => { ++updates; threads.Add(Thread.CurrentThread.ManagedThreadId); };
                Session.InstructionReceived += word => { ++words; threads.Add(Thread.CurrentThread.ManagedThreadId); };
                Start();
                for (int i = 0; i < 200; ++i) Device.Run(Session, 0.1, step: 0.01);
                Device.Settle();
                Session.Tick();
                CollectionAssert.AreEqual(new[] { Thread.CurrentThread.ManagedThreadId }, threads);
                CollectionAssert.IsSubsetOf(new[] { "main", "delegate" }, native.Names);
                Assert.AreEqual(500, Session.UpdateCount);
                Assert.AreEqual(6, words);
                Assert.Greater(updates, 0);
            }
            finally
            {
                SimulatedDevice.SetFreeRunning(false);
            }
        }

        private void ResumeInVain(double seconds)
        {
            Start();
            string map = Run(Session.StopWithWorldMapAsync(Folder));
            Device.SetOption("tracking", "limited");
            Session.ResumeFromWorldMapAsync(map);
            Device.Run(Session, seconds);
        }

        /// <summary>As Unity's: the main thread has a context of its own.</summary>
        private sealed class PostingContext : SynchronizationContext
        {
            internal int Posts;

            public override void Post(SendOrPostCallback callback, object state)
            {
                ++Posts;
                base.Post(callback, state);
            }
        }

        private sealed class ThreadTap : ISessionTap
        {
            internal readonly HashSet<string> Names = new HashSet<string>();

            public void OnRun() => Add();

            public void OnInstruction(string word) => Add();

            public void OnUpdate(ArraySegment<byte> room) => Add();

            private void Add()
            {
                lock (Names) Names.Add(SimulatedDevice.ThreadName);
            }
        }
    }
}
