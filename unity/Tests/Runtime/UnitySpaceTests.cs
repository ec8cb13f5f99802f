using System;
using System.Linq;
using NUnit.Framework;

namespace Vantorel.Tests
{
    [TestFixture]
    public class UnitySpaceTests
    {
        private readonly Random random = new Random(11);

        [Test]
        public void APointOfAnElementIsWhereItWas()
        {
            // Converting the element's pose and a point in it is converting the point in the world.
            ForAnyPose((pose, point) => AreNear(
                UnitySpace.FromPoint(Apply(pose, point)), Apply(UnitySpace.FromPose(pose), UnitySpace.FromPoint(point))));
        }

        [Test]
        public void ConvertingTwiceChangesNothing()
        {
            ForAnyPose((pose, point) =>
            {
                CollectionAssert.AreEqual(pose, UnitySpace.FromPose(UnitySpace.FromPose(pose)));
                CollectionAssert.AreEqual(point, UnitySpace.FromPoint(UnitySpace.FromPoint(point)));
                CollectionAssert.AreEqual(pose, UnitySpace.FromCameraPose(UnitySpace.FromCameraPose(pose)));
            });
        }

        [Test]
        public void ARotationTurnsAsItsPoseDoes()
        {
            for (int i = 0; i < 1000; ++i)
            {
                float[] rotation = AnyRotation(), point = AnyPoint();
                AreNear(UnitySpace.FromPoint(Apply(Pose(rotation, new float[3]), point)),
                        Apply(Pose(UnitySpace.FromRotation(rotation), new float[3]), UnitySpace.FromPoint(point)));
            }
        }

        [Test]
        public void ACameraOfTheLibraryIsThePoseOfRoomPlanInUnitysSpace()
        {
            ForAnyPose((pose, point) =>
            {
                // The library's signs, row by row, as vantorel.h's hosts get them.
                int[] negated = { 0, 1, 2, 4, 5, 6, 11 };
                var rows = Enumerable.Range(0, 16).Select(i => pose[i % 4 * 4 + i / 4] * (negated.Contains(i) ? -1 : 1));
                string text = "[" + string.Join(", ", rows.Select(number => number.ToString("R"))) + "]";
                AreNear(UnitySpace.FromPose(pose), UnitySpace.FromCameraPose(CameraText.Read(text)));
            });
        }

        private void ForAnyPose(Action<float[], float[]> holds)
        {
            for (int i = 0; i < 1000; ++i) holds(Pose(AnyRotation(), AnyPoint()), AnyPoint());
        }

        private float[] AnyPoint() => new[] { AnyNumber() * 20, AnyNumber() * 20, AnyNumber() * 20 };

        private float AnyNumber() => (float)(random.NextDouble() * 2 - 1);

        private float[] AnyRotation()
        {
            var numbers = Enumerable.Range(0, 4).Select(i => AnyNumber()).ToArray();
            float length = (float)Math.Sqrt(numbers.Sum(number => number * number));
            return numbers.Select(number => number / length).ToArray();
        }

        private static float[] Pose(float[] rotation, float[] at)
        {
            float x = rotation[0], y = rotation[1], z = rotation[2], w = rotation[3];
            return new[]
            {
                1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w), 0,
                2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w), 0,
                2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y), 0, at[0], at[1], at[2], 1,
            };
        }

        private static float[] Apply(float[] columns, float[] point)
        {
            return Enumerable.Range(0, 3).Select(row => columns[row] * point[0] + columns[4 + row] * point[1] +
                                                        columns[8 + row] * point[2] + columns[12 + row]).ToArray();
        }

        private static void AreNear(float[] expected, float[] actual)
        {
            for (int i = 0; i < expected.Length; ++i) Assert.AreEqual(expected[i], actual[i], 1e-4);
        }
    }
}
