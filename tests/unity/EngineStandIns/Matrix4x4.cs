namespace UnityEngine
{
    public struct Matrix4x4
    {
        private float[] columns;

        public static Matrix4x4 identity
        {
            get
            {
                var matrix = new Matrix4x4();
                for (int i = 0; i < 4; ++i) matrix[i, i] = 1;
                return matrix;
            }
        }

        public float this[int row, int column]
        {
            get { return columns == null ? 0 : columns[column * 4 + row]; }
            set
            {
                columns = columns == null ? new float[16] : (float[])columns.Clone();
                columns[column * 4 + row] = value;
            }
        }

        public Quaternion rotation => Quaternion.Of(this);

        public Vector3 GetPosition() => new Vector3(this[0, 3], this[1, 3], this[2, 3]);

        public Vector3 MultiplyPoint3x4(Vector3 point)
        {
            return new Vector3(Row(0, point), Row(1, point), Row(2, point));
        }

        private float Row(int row, Vector3 point)
        {
            return this[row, 0] * point.x + this[row, 1] * point.y + this[row, 2] * point.z + this[row, 3];
        }
    }
}
