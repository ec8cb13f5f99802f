using System;
using System.Runtime.InteropServices;
using System.Text;

namespace Vantorel.Interop
{
    /// <summary>Texts on their way across the C border: UTF-8 with a NUL behind.</summary>
    internal static class NativeText
    {
        /// <summary>How many texts of the library were freed since the process began.</summary>
        internal static long FreedCount;

        /// <exception cref="ArgumentNullException">The library allows no null pointer.</exception>
        /// <exception cref="ArgumentException">The text holds a NUL, where the library would cut it.</exception>
        internal static byte[] ToNative(string text, string name)
        {
            if (text == null) throw new ArgumentNullException(name);
            if (text.IndexOf('\0') >= 0) throw new ArgumentException("The text holds a NUL character.", name);
            return Encoding.UTF8.GetBytes(text + "\0");
        }

        /// <summary>Copies a text of the library and frees it; null for a null pointer.</summary>
        internal static string Take(IntPtr text)
        {
            if (text == IntPtr.Zero) return null;
            try
            {
                return Copy(text);
            }
            finally
            {
                Free(text);
            }
        }

        /// <summary>Copies a text that stays with its owner; null for a null pointer.</summary>
        internal static string Copy(IntPtr text)
        {
            if (text == IntPtr.Zero) return null;
            var bytes = new byte[Length(text)];
            Marshal.Copy(text, bytes, 0, bytes.Length);
            return Encoding.UTF8.GetString(bytes);
        }

        /// <summary>In bytes, without the NUL.</summary>
        internal static int Length(IntPtr text) => checked((int)CRuntime.Length(text).ToUInt64());

        internal static void Free(IntPtr text)
        {
            System.Threading.Interlocked.Increment(ref FreedCount);
            CRuntime.Free(text);
        }
    }
}
