using System.Collections.Generic;
using UnityEditor;
using UnityEngine;

namespace Vantorel.Editor
{
    /// <summary>The inspector of a <see cref="RoomScanner"/>: what its session does, and the room as it grows.</summary>
    [CustomEditor(typeof(RoomScanner))]
    public sealed class RoomScannerEditor : UnityEditor.Editor
    {
        private const float PlanHeight = 240, Margin = 8;

        private static readonly Dictionary<PlanLineKind, Color> Colors = new Dictionary<PlanLineKind, Color>
        {
            { PlanLineKind.Wall, new Color(0.55f, 0.55f, 0.55f) }, { PlanLineKind.Door, new Color(0.8f, 0.5f, 0.2f) },
            { PlanLineKind.Window, new Color(0.3f, 0.6f, 1) }, { PlanLineKind.Opening, new Color(0.3f, 0.8f, 0.4f) },
            { PlanLineKind.Object, new Color(0.7f, 0.4f, 0.8f) },
        };

        private readonly ScanWatch watch = new ScanWatch();

        public override bool RequiresConstantRepaint() => Application.isPlaying;

        public override void OnInspectorGUI()
        {
            DrawDefaultInspector();
            if (!Application.isPlaying)
            {
                EditorGUILayout.HelpBox("Play scans with the phone of Project Settings > Vantorel.", MessageType.Info);
                return;
            }
            watch.Look(((RoomScanner)target).Session);
            string failure = PlayHooks.Device?.Failure;
            if (failure != null) EditorGUILayout.HelpBox("The simulated iPhone has stopped: " + failure, MessageType.Error);
            EditorGUILayout.LabelField("State", watch.State);
            EditorGUILayout.LabelField("Last instruction", watch.Instruction);
            EditorGUILayout.LabelField("Updates", watch.UpdateCount.ToString());
            Draw(watch.Plan, EditorGUILayout.GetControlRect(false, PlanHeight));
        }

        private void OnDisable() => watch.Turn(null);

        private static void Draw(List<PlanLine> plan, Rect page)
        {
            foreach (var line in FloorPlan.Fit(plan, page.width, page.height, Margin))
            {
                Handles.color = Colors[line.Kind];
                Handles.DrawLine(Point(page, line.X0, line.Y0), Point(page, line.X1, line.Y1));
            }
        }

        private static Vector3 Point(Rect page, float x, float y) => new Vector3(page.x + x, page.y + y, 0);
    }
}
