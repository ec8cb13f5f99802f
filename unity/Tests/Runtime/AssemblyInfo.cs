using System.Runtime.CompilerServices;

[assembly: InternalsVisibleTo("Vantorel.EngineTests")]
[assembly: InternalsVisibleTo("Vantorel.EditorTests")]
