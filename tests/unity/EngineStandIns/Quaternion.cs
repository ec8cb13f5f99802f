using System;

namespace UnityEngine
{
    public struct Quaternion
    {
        public float x, y, z, w;

        /// <summary>Of a matrix whose upper left nine numbers turn and do nothing else.</summary>
        internal static Quaternion Of(Matrix4x4 m)
        {
            return new Quaternion
            {
                w = Half(1 + m[0, 0] + m[1, 1] + m[2, 2]),
                x = Half(1 + m[0, 0] - m[1, 1] - m[2, 2], m[2, 1] - m[1, 2]),
                y = Half(1 - m[0, 0] + m[1, 1] - m[2, 2], m[0, 2] - m[2, 0]),
                z = Half(1 - m[0, 0] - m[1, 1] + m[2, 2], m[1, 0] - m[0, 1]),
            };
        }

        public static Vector3 operator *(Quaternion q, Vector3 v)
        {
            // v + 2 u x (u x v + w v), u the vector part.
            float a = q.y * v.z - q.z * v.y + q.w * v.x;
            float b = q.z * v.x - q.x * v.z + q.w * v.y;
            float c = q.x * v.y - q.y * v.x + q.w * v.z;
            return new Vector3(v.x + 2 * (q.y * c - q.z * b), v.y + 2 * (q.z * a - q.x * c), v.z + 2 * (q.x * b - q.y * a));
        }

        private static float Half(float square, float sign = 1)
        {
            float half = (float)Math.Sqrt(Math.Max(0, square)) / 2;
            return sign < 0 ? -half : half;
        }
    }
}
