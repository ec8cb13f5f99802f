using System.Runtime.CompilerServices;

[assembly: InternalsVisibleTo("Vantorel")]
[assembly: InternalsVisibleTo("Vantorel.Simulation")]
[assembly: InternalsVisibleTo("Vantorel.Tests")]
