namespace Vantorel
{
    /// <summary>
    /// From RoomPlan's space to Unity's. Both are in metres with y up; RoomPlan's is right-handed and looks along -z,
    /// Unity's is left-handed and looks along +z. With S = diag(1, 1, -1) a point p becomes S p, and a pose M, whose own
    /// z axis turns round too, becomes S M S. The same conversion leads back. Matrices are 16 numbers column by column,
    /// as in Unity's Matrix4x4. The winding of polygons turns round.
    /// </summary>
    public static class UnitySpace
    {
        /// <summary>Also for points in an element's own plane, as a floor's corners.</summary>
        public static float[] FromPoint(float[] point) => new[] { point[0], point[1], -point[2] };

        /// <summary>Of a pose, as a wall's Transform.</summary>
        public static float[] FromPose(float[] columns)
        {
            var converted = (float[])columns.Clone();
            for (int i = 0; i < converted.Length; ++i)
                if ((i % 4 == 2) != (i / 4 == 2)) converted[i] = -converted[i];
            return converted;
        }

        /// <summary>Of a quaternion x, y, z, w.</summary>
        public static float[] FromRotation(float[] rotation)
        {
            return new[] { -rotation[0], -rotation[1], rotation[2], rotation[3] };
        }

        /// <summary>
        /// Of <see cref="ScanSession.CameraPose"/>: the library gives it in Unity's space already, but rolled by half a
        /// turn about the camera's own z axis; this turns it back, so that z looks ahead as on a Unity camera.
        /// </summary>
        public static float[] FromCameraPose(float[] columns)
        {
            var converted = (float[])columns.Clone();
            for (int i = 0; i < 8; ++i) converted[i] = -converted[i];
            return converted;
        }
    }
}
