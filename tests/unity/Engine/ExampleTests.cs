using System.IO;
using NUnit.Framework;
using UnityEngine;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    /// <summary>Examples of the documentation, compiled from it.</summary>
    [TestFixture]
    public class ExampleTests : DeviceTest
    {
        [Test]
        public void TheFirstExampleOfTheReadmeScansAndSaves()
        {
            Session.Dispose();
            Application.persistentDataPath = Folder;
            Debug.Lines.Clear();
            Device.ScanRoom(TestFiles.Flat, seconds: 2);
            var example = new Snippets.UnityReadme1.FirstScan();
            example.Send("Start");
            var scanner = example.gameObject.GetComponent<RoomScanner>();
            Frames(scanner, 30);
            example.Done();
            Frames(scanner, 5);

            CollectionAssert.Contains(Debug.Lines, "MoveCloseToWall");
            CollectionAssert.Contains(Debug.Lines, CapturedRoom.Load(TestFiles.Flat).Walls.Count + " walls");
            string last = Debug.Lines[Debug.Lines.Count - 1];
            StringAssert.StartsWith("The model is ", last);
            Assert.IsTrue(File.Exists(last.Substring("The model is ".Length)), last);
        }

        [Test]
        public void TheTestOfTheDocumentationPasses()
        {
            Session.Dispose();
            string before = Directory.GetCurrentDirectory();
            Directory.CreateDirectory(Path.Combine(Folder, "Assets", "Tests"));
            File.Copy(TestFiles.Flat, Path.Combine(Folder, "Assets", "Tests", "flat.json"));
            Directory.SetCurrentDirectory(Folder);
            try
            {
                new Snippets.DocumentationTesting1.ScanTest().AScanThatIsInterruptedCanStillBeSaved();
            }
            finally
            {
                Directory.SetCurrentDirectory(before);
            }
        }

        private void Frames(RoomScanner scanner, int count)
        {
            for (int i = 0; i < count; ++i)
            {
                Device.Advance(0.1);
                scanner.Send("Update");
            }
        }
    }
}
