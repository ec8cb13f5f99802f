using System;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Text;
using NUnit.Framework;
using Vantorel.Interop;

namespace Vantorel.Tests
{
    /// <summary>
    /// What updates cost: managed bytes by GC.GetAllocatedBytesForCurrentThread (main thread, where updates come),
    /// native ones by what glibc's allocator has given out.
    /// </summary>
    [TestFixture]
    public class UpdateCostTests : DeviceTest
    {
        private const int Updates = 10000;

        private static readonly MethodInfo AllocatedBytes = typeof(GC).GetMethod("GetAllocatedBytesForCurrentThread");

        [Test]
        public void UnreadUpdatesCostNoManagedBytesAndLeakNoText()
        {
            Scan(Updates);
            Device.Run(Session, 0.5, step: 0.001);  // compiled, and the buffer has grown
            RequireGlibc();
            long freed = NativeText.FreedCount, native = NativeBytes(), managed = Managed();
            int updates = Session.UpdateCount;
            Device.Run(Session, 10, step: 0.001);
            updates = Session.UpdateCount - updates;

            Assert.Greater(updates, Updates * 9 / 10);
            managed = Managed() - managed;
            Console.WriteLine("{0} bytes for {1} updates", managed, updates);
            Assert.Less(managed, 100000, "the buffer, as the room grows, and six coaching words");
            Assert.AreEqual(updates, NativeText.FreedCount - freed, 6, "texts freed: one an update, and coaching words");
            // The room grows while it is scanned; one leaked text an update would be 60 MB.
            Assert.Less(NativeBytes() - native, 2000000, "native bytes");
        }

        [Test]
        public void AReadUpdateCostsAtMostTwiceItsTextWithoutCoreModel()
        {
            foreach (string path in TestFiles.Rooms)
            {
                SwitchOff();
                SwitchOn();
                Device.ScanRoom(path, seconds: 10, rate: 20);
                Start();
                long text = 0, allocated = 0;
                int walls = 0;
                Session.RoomUpdated += () =>
                {
                    text += TextWithoutCoreModel();
                    long before = Managed();
                    walls += Session.Room.Walls.Count;
                    allocated += Managed() - before;
                };
                Device.Run(Session, 11);
                Assert.Greater(walls, 0);
                string name = System.IO.Path.GetFileName(path);
                Console.WriteLine("{0}: {1:0.00} bytes a byte of text", name, (double)allocated / text);
                Assert.Less(allocated, 2 * text, path);
            }
        }

        [Test]
        public void UpdatesThatNobodyTicksPileNothingUp()
        {
            Scan(Updates);
            Device.Advance(0.5);
            long managed = Managed();
            Device.Advance(5);
            Assert.Less(Managed() - managed, 1000000);
            int events = 0;
            Session.RoomUpdated += () => ++events;
            Session.Tick();
            Assert.Less(events, 10, "one event for updates that follow each other");
        }

        private void Scan(int updates)
        {
            Device.ScanRoom(TestFiles.Flat, seconds: 10, rate: updates / 10.0);
            Device.Run(Session, Session.StartAsync(), step: 0.001);
        }

        private int TextWithoutCoreModel()
        {
            byte[] text = Encoding.UTF8.GetBytes(Session.RoomText);
            var cut = CoreModel.Find(text, 0, text.Length);
            return text.Length - (cut is CoreModel found ? found.ValueEnd - found.ValueStart - 2 : 0);
        }

        private static long Managed()
        {
            if (AllocatedBytes == null) Assert.Ignore("this runtime does not count allocated bytes");
            return (long)AllocatedBytes.Invoke(null, null);
        }

        private static void RequireGlibc()
        {
            if (!RuntimeInformation.IsOSPlatform(OSPlatform.Linux)) Assert.Ignore("native bytes are counted on Linux alone");
        }

        private static long NativeBytes() => (long)mallinfo2().InUse.ToUInt64() + (long)mallinfo2().Mapped.ToUInt64();

        [DllImport("libc.so.6")]
        private static extern AllocatorState mallinfo2();

        [StructLayout(LayoutKind.Sequential)]
        private struct AllocatorState
        {
            public UIntPtr Arena, FreeChunks, FastFree, MappedChunks, Mapped, Unused, FastFreeBytes, InUse, Free, Releasable;
        }
    }
}
