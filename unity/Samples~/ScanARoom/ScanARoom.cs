using System;
using System.Collections.Generic;
using System.Threading.Tasks;
using UnityEngine;

namespace Vantorel.Samples
{
    /// <summary>
    /// Scans a room, says what the phone asks for, draws what it has seen as boxes below this object, and saves it. Put
    /// it onto an empty object and press Play.
    /// </summary>
    [RequireComponent(typeof(RoomScanner))]
    public sealed class ScanARoom : MonoBehaviour
    {
        /// <summary>In metres; surfaces have none of their own. Doors and windows stand out of their walls.</summary>
        private const float WallThickness = 0.05f, DoorThickness = 0.1f;

        private readonly Dictionary<string, GameObject> boxes = new Dictionary<string, GameObject>();
        private ScanSession session;
        private string message = "Ready to scan.";

        // CreatePrimitive adds these, and an iPhone build lacks engine types that no script names.
        private MeshFilter StrippedUnlessNamed { get; set; }
        private BoxCollider StrippedToo { get; set; }

        private void Start()
        {
            session = GetComponent<RoomScanner>().Session;
            session.InstructionReceived += coaching => message = Say(coaching);
            session.RoomUpdated += Draw;
        }

        private void OnGUI()
        {
            GUILayout.Label(message);
            if (!session.IsScanning && GUILayout.Button("Scan")) Try(Scan);
            if (session.IsScanning && GUILayout.Button("Save")) Try(Save);
        }

        private async Task Scan()
        {
            await session.StartAsync();
            message = "Walk around slowly and point the phone at the walls.";
        }

        private async Task Save()
        {
            var saved = await session.SaveAsync("scans", DateTime.Now.ToString("yyyy-MM-dd HH.mm.ss"));
            await session.StopAsync();
            message = "Saved as " + saved.Folder;
        }

        private async void Try(Func<Task> step)
        {
            try
            {
                await step();
            }
            catch (Exception failure)
            {
                message = failure.Message;
            }
        }

        private static string Say(Coaching coaching)
        {
            switch (coaching.Word)
            {
                case CoachingWord.Normal: return "Good. Go on.";
                case CoachingWord.MoveCloseToWall: return "Move closer to the wall.";
                case CoachingWord.MoveAwayFromWall: return "Step back from the wall.";
                case CoachingWord.SlowDown: return "Slow down.";
                case CoachingWord.TurnOnLight: return "Turn on a light.";
                case CoachingWord.LowTexture: return "There is too little to see here.";
                default: return coaching.Text;
            }
        }

        private void Draw()
        {
            var gone = new HashSet<string>(boxes.Keys);
            var room = session.Room;
            Draw(room.Floors, WallThickness, new Color(0.5f, 0.5f, 0.5f), gone);
            Draw(room.Walls, WallThickness, Color.white, gone);
            Draw(room.Doors, DoorThickness, new Color(0.6f, 0.4f, 0.2f), gone);
            Draw(room.Windows, DoorThickness, new Color(0.4f, 0.7f, 1), gone);
            foreach (var piece in room.Objects)
                Place(piece.Identifier, piece.UnityPose(), piece.UnitySize(), new Color(0.7f, 0.5f, 0.8f), gone);
            foreach (string identifier in gone) Remove(identifier);
        }

        private void Draw(IReadOnlyList<Surface> surfaces, float thickness, Color color, HashSet<string> gone)
        {
            foreach (var surface in surfaces)
            {
                var size = surface.UnitySize();
                Place(surface.Identifier, surface.UnityPose(), new Vector3(size.x, size.y, thickness), color, gone);
            }
        }

        /// <summary>Elements keep their identifiers while they grow, so each has one box.</summary>
        private void Place(string identifier, Matrix4x4 pose, Vector3 size, Color color, HashSet<string> gone)
        {
            gone.Remove(identifier);
            if (!boxes.TryGetValue(identifier, out var box))
            {
                boxes[identifier] = box = GameObject.CreatePrimitive(PrimitiveType.Cube);
                box.transform.SetParent(transform, false);
                box.GetComponent<MeshRenderer>().material.color = color;
            }
            box.transform.localPosition = pose.GetPosition();
            box.transform.localRotation = pose.rotation;
            box.transform.localScale = size;
        }

        private void Remove(string identifier)
        {
            Destroy(boxes[identifier]);
            boxes.Remove(identifier);
        }
    }
}
