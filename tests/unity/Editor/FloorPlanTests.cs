using System;
using System.Collections.Generic;
using System.Linq;
using NUnit.Framework;
using Vantorel.Editor;

namespace Vantorel.Tests
{
    [TestFixture]
    public class FloorPlanTests
    {
        private const string AtMinusZ = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 -3 1", AtX = "0 0 -1 0 0 1 0 0 1 0 0 0 2 0 -1 1";
        private const string Room = @"{""version"":2,""walls"":[{0}],""doors"":[],""windows"":[],""openings"":[],
            ""objects"":[]}";

        [Test]
        public void EveryRoomKeepsItsLengthsAndFitsThePageInOneScale()
        {
            foreach (string path in TestFiles.Rooms)
            {
                var room = CapturedRoom.Load(path);
                var plan = FloorPlan.Of(room);
                var kinds = new[] { room.Walls, room.Openings, room.Windows, room.Doors };
                var surfaces = kinds.SelectMany(all => all).ToArray();
                Assert.AreEqual(surfaces.Length + 4 * room.Objects.Count, plan.Count, path);
                var widths = surfaces.Select(surface => surface.Dimensions[0]);
                var lengths = plan.Where(line => line.Kind != PlanLineKind.Object).Select(Length);
                Assert.That(lengths, Is.EqualTo(widths).Within(1e-3), path);

                var page = FloorPlan.Fit(plan, 300, 200, 10);
                float[] xs = page.SelectMany(line => new[] { line.X0, line.X1 }).ToArray();
                float[] ys = page.SelectMany(line => new[] { line.Y0, line.Y1 }).ToArray();
                Assert.That(xs, Is.All.InRange(9.99, 290.01), path);
                Assert.That(ys, Is.All.InRange(9.99, 190.01), path);
                float scale = Length(page[0]) / Length(plan[0]);
                Assert.That(page.Select(Length), Is.EqualTo(plan.Select(line => Length(line) * scale)).Within(0.1), path);
                bool fillsWidth = xs.Max() - xs.Min() > 279.9, fillsHeight = ys.Max() - ys.Min() > 179.9;
                Assert.IsTrue(fillsWidth || fillsHeight, path);
            }
        }

        [Test]
        public void ARoomIsSeenFromAboveAndNotInAMirror()
        {
            var plan = FloorPlan.Fit(FloorPlan.Of(WithWalls(AtMinusZ, AtX)), 100, 100, 0);
            PlanLine ahead = plan[0], right = plan[1];
            Assert.AreEqual(ahead.Y0, ahead.Y1, 1e-3, "across the page");
            Assert.Less(ahead.Y0, Math.Min(right.Y0, right.Y1), "ahead is up");
            Assert.Greater(right.X0, Math.Max(ahead.X0, ahead.X1), "right is right");
        }

        [Test]
        public void ALoneLineAndNoneCanBeDrawn()
        {
            var lone = FloorPlan.Fit(FloorPlan.Of(WithWalls(AtX)), 100, 60, 10)[0];
            Assert.AreEqual(50, lone.X0, 1e-2);
            Assert.AreEqual(40, Length(lone), 1e-2);
            CollectionAssert.IsEmpty(FloorPlan.Fit(new List<PlanLine>(), 100, 60, 10));
        }

        private static CapturedRoom WithWalls(params string[] poses)
        {
            var walls = poses.Select(pose => @"{""identifier"":""0"",""category"":{""wall"":{}},""confidence"":{""high"":{}},
                ""dimensions"":[2,2.5,0],""transform"":[" + pose.Replace(' ', ',') + "]}");
            return CapturedRoom.Parse(Room.Replace("{0}", string.Join(",", walls)));
        }

        private static float Length(PlanLine line)
        {
            return (float)Math.Sqrt(Math.Pow(line.X1 - line.X0, 2) + Math.Pow(line.Y1 - line.Y0, 2));
        }
    }
}
