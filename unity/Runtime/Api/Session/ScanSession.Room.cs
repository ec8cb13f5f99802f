using System;
using System.Text;
using Vantorel.Interop;

namespace Vantorel
{
    public sealed partial class ScanSession
    {
        private CapturedRoom room;
        private int roomNumber;

        /// <summary>How many room updates came, those included that no event told of.</summary>
        public int UpdateCount => inbox.RoomNumber;

        /// <summary>
        /// The newest room of this session, parsed when somebody looks; null before the first update. The same object
        /// until a newer text comes.
        /// </summary>
        /// <exception cref="FormatException">The text is no room.</exception>
        public CapturedRoom Room
        {
            get
            {
                int newest = inbox.RoomNumber;
                if (newest != roomNumber) room = inbox.Read(CapturedRoom.Parse);
                roomNumber = newest;
                return room;
            }
        }

        /// <summary>
        /// The newest room's whole text, as the platform gives it, with the coreModel that a merge needs; null before
        /// the first update. A new string at each call: 100 to 500 KB.
        /// </summary>
        public string RoomText => inbox.Read(bytes => Encoding.UTF8.GetString(bytes.Array, bytes.Offset, bytes.Count));

        /// <summary>
        /// The camera's pose as the library gives it; see <see cref="UnitySpace.FromCameraPose"/>. 16 numbers, column
        /// by column; null unless a scan runs.
        /// </summary>
        public float[] CameraPose => CameraText.Take(Native.getVTLARCameraMatrixRuntime());

        /// <summary>The camera's projection as the library gives it (near 0.01 m, far 1000 m), likewise.</summary>
        public float[] CameraProjection => CameraText.Take(Native.getVTLARCameraProjectionMatrixRuntime());
    }
}
