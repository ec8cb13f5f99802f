using System.Runtime.CompilerServices;

[assembly: InternalsVisibleTo("Vantorel.EditorTests")]
