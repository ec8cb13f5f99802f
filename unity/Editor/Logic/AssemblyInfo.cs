using System.Runtime.CompilerServices;

[assembly: InternalsVisibleTo("Vantorel.Editor")]
[assembly: InternalsVisibleTo("Vantorel.EditorTests")]
