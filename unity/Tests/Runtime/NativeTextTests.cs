using System;
using System.Runtime.InteropServices;
using NUnit.Framework;
using Vantorel.Interop;

namespace Vantorel.Tests
{
    [TestFixture]
    public class NativeTextTests
    {
        [TestCase("")]
        [TestCase("räume/日本/🏠")]
        public void ATextIsItselfAfterwards(string text)
        {
            var bytes = NativeText.ToNative(text, "text");
            Assert.AreEqual(0, bytes[bytes.Length - 1]);
            var pinned = GCHandle.Alloc(bytes, GCHandleType.Pinned);
            Assert.AreEqual(text, NativeText.Copy(pinned.AddrOfPinnedObject()));
            pinned.Free();
        }

        [Test]
        public void WhatTheLibraryWouldMisreadIsRefused()
        {
            Assert.Throws<ArgumentNullException>(() => NativeText.ToNative(null, "text"));
            Assert.Throws<ArgumentException>(() => NativeText.ToNative("a\0b", "text"));
            Assert.IsNull(NativeText.Take(IntPtr.Zero));
        }

        [TestCase("MoveCloseToWall", CoachingWord.MoveCloseToWall)]
        [TestCase("None", CoachingWord.None)]
        [TestCase("Unknown", CoachingWord.Unknown)]
        [TestCase("HoldStill", CoachingWord.Unknown)]
        [TestCase("3", CoachingWord.Unknown)]
        public void ACoachingWordIsKeptAsItCame(string text, CoachingWord word)
        {
            Assert.AreEqual(word, new Coaching(text).Word);
            Assert.AreEqual(text, new Coaching(text).Text);
        }
    }
}
