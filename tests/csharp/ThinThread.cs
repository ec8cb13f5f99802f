// ThinThread ROOM: a host in C# that starts, sees updates of ROOM, saves it and compares. ROOM is pretty and sorted.
using System;
using System.IO;
using System.Runtime.InteropServices;
using System.Text;

static class ThinThread {
  delegate void Callback();
  delegate void TextCallback(IntPtr text);

  [DllImport("vantorel")] static extern void setVTLDidStart(Callback callback);
  [DllImport("vantorel")] static extern void setVTLCaptureSessionDidStart(Callback callback);
  [DllImport("vantorel")] static extern void setVTLCaptureSessionDidUpdate(Callback callback);
  [DllImport("vantorel")] static extern void setVTLCaptureSessionInstruction(TextCallback callback);
  [DllImport("vantorel")] static extern void setVTLRoomSnapshot(TextCallback callback);
  [DllImport("vantorel")] static extern void initializeVTL();
  [DllImport("vantorel")] static extern void startCaptureSession();
  [DllImport("vantorel")] static extern byte trySaveRoomPlanExperience(byte[] directoryName, byte[] scanName);
  [DllImport("vantorel")] static extern IntPtr getVantorelVersion();
  [DllImport("vantorel")] static extern IntPtr vantorelDeviceSetDocumentsDirectory(byte[] path);
  [DllImport("vantorel")] static extern IntPtr vantorelDeviceSetRoom(byte[] path, double seconds, double rate);
  [DllImport("vantorel")] static extern IntPtr vantorelDeviceAdvance(double seconds);
  [DllImport("vantorel")] static extern void vantorelDevicePowerCycle();
  [DllImport("libc")] static extern void free(IntPtr text);

  static byte[] Utf8(string text) => Encoding.UTF8.GetBytes(text + "\0");

  /// The text, which is freed as the header asks; null for none.
  static string Take(IntPtr text) {
    if (text == IntPtr.Zero) return null;
    int length = 0;
    while (Marshal.ReadByte(text, length) != 0) ++length;
    var bytes = new byte[length];
    Marshal.Copy(text, bytes, 0, length);
    free(text);
    return Encoding.UTF8.GetString(bytes);
  }

  static int starts, sessions, updates;
  static string snapshot, instruction;

  // Native code holds only function pointers: the delegates live in fields.
  static readonly Callback didStart = () => ++starts, sessionDidStart = () => ++sessions, didUpdate = () => ++updates;
  static readonly TextCallback roomSnapshot = text => snapshot = Take(text), instructed = text => instruction = Take(text);

  static void Expect(bool holds, string what) {
    Console.WriteLine((holds ? "ok     " : "FAILED ") + what);
    if (!holds) Environment.ExitCode = 1;
  }

  static void Main(string[] arguments) {
    string room = arguments[0], folder = Path.Combine(Path.GetTempPath(), "vantorel-" + Guid.NewGuid());
    setVTLDidStart(didStart);
    setVTLCaptureSessionDidStart(sessionDidStart);
    setVTLCaptureSessionDidUpdate(didUpdate);
    setVTLCaptureSessionInstruction(instructed);
    setVTLRoomSnapshot(roomSnapshot);
    Expect(Take(getVantorelVersion()) == "Vantorel 1.3.0", "the version is read");
    Expect(Take(vantorelDeviceSetDocumentsDirectory(Utf8(folder))) == null, "the documents directory is taken");
    Expect(Take(vantorelDeviceSetRoom(Utf8(room), 2, 10)) == null, "the room is taken");
    initializeVTL();
    Take(vantorelDeviceAdvance(0));
    startCaptureSession();
    GC.Collect();  // a callback that nobody kept would be gone now
    Expect(Take(vantorelDeviceAdvance(3)) == null, "time goes on");
    Expect(starts == 1 && sessions == 1, "the library and the session started");
    Expect(updates > 1 && instruction != null, updates + " updates and instructions came");
    Expect(snapshot == File.ReadAllText(room), "the last snapshot is the room");
    Expect(trySaveRoomPlanExperience(Utf8("räume"), Utf8("first")) == 1, "the save succeeds");
    string saved = Path.Combine(folder, "räume", "first");
    Expect(File.ReadAllText(Path.Combine(saved, "scan.json")) == snapshot, "scan.json is the snapshot");
    Expect(new FileInfo(Path.Combine(saved, "scan.usdz")).Length > 0, "scan.usdz is there");
    Directory.Delete(folder, true);
    vantorelDevicePowerCycle();  // ends the device's threads: Mono waits for every thread that called into C#
  }
}
