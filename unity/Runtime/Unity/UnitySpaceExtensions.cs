using UnityEngine;

namespace Vantorel
{
    /// <summary>Rooms and cameras in Unity's types and Unity's space; see <see cref="UnitySpace"/>.</summary>
    public static class UnitySpaceExtensions
    {
        /// <summary>The pose of the surface's middle.</summary>
        public static Matrix4x4 UnityPose(this Surface surface) => ToMatrix(UnitySpace.FromPose(surface.Transform));

        /// <summary>The pose of the object's middle.</summary>
        public static Matrix4x4 UnityPose(this RoomObject piece) => ToMatrix(UnitySpace.FromPose(piece.Transform));

        /// <summary>Width, height and depth in metres.</summary>
        public static Vector3 UnitySize(this Surface surface) => ToVector(surface.Dimensions);

        /// <summary>Width, height and depth in metres.</summary>
        public static Vector3 UnitySize(this RoomObject piece) => ToVector(piece.Dimensions);

        public static Vector3 UnityCenter(this Section section) => ToVector(UnitySpace.FromPoint(section.Center));

        /// <summary>
        /// The camera's pose, z ahead, and the projection as the library gives it; false unless a scan runs. Like the
        /// sensor, the pose lies on its side while the phone is held upright.
        /// </summary>
        public static bool TryGetCamera(this ScanSession session, out Matrix4x4 cameraToWorld, out Matrix4x4 projection)
        {
            float[] pose = session.CameraPose, lens = session.CameraProjection;
            bool scans = pose != null && lens != null;
            cameraToWorld = scans ? ToMatrix(UnitySpace.FromCameraPose(pose)) : Matrix4x4.identity;
            projection = scans ? ToMatrix(lens) : Matrix4x4.identity;
            return scans;
        }

        /// <param name="columns">16 numbers column by column, already in Unity's space.</param>
        public static Matrix4x4 ToMatrix(float[] columns)
        {
            var matrix = new Matrix4x4();
            for (int i = 0; i < columns.Length; ++i) matrix[i % 4, i / 4] = columns[i];
            return matrix;
        }

        /// <param name="numbers">Three, already in Unity's space.</param>
        public static Vector3 ToVector(float[] numbers) => new Vector3(numbers[0], numbers[1], numbers[2]);
    }
}
