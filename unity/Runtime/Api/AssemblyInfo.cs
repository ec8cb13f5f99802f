using System.Runtime.CompilerServices;

[assembly: InternalsVisibleTo("Vantorel.Simulation")]
[assembly: InternalsVisibleTo("Vantorel.Tests")]
