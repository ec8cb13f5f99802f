using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Text.RegularExpressions;
using NUnit.Framework;
using Vantorel.Interop;
using Vantorel.Simulation;

namespace Vantorel.Tests
{
    [TestFixture]
    public class EntryPointTests
    {
        private static readonly Dictionary<string, string> CSharpTypes = new Dictionary<string, string>
        {
            { "void", "Void" }, { "void *", "IntPtr" }, { "char *", "IntPtr" }, { "double", "Double" },
            { "uint32_t", "UInt32" }, { "vantorelBool", "Boolean/U1" }, { "vantorelCallback", "NativeCallback" },
            { "vantorelTextCallback", "NativeTextCallback" }, { "vantorelDeviceObserver", "NativeDeviceObserver" },
        };

        [TestCase("vantorel.h", typeof(Native), 54)]
        [TestCase("simulated_device.h", typeof(NativeDevice), 20)]
        public void EveryFunctionOfTheHeaderIsBoundAsItIsDeclared(string header, Type bindings, int count)
        {
            string text = File.ReadAllText(Path.Combine(TestFiles.Root, "include", "vantorel", header));
            var declared = Regex.Matches(text, @"^VANTOREL_EXPORT\s+(.*?)(\w+)\(([^)]*)\)\s+VANTOREL_NOEXCEPT;",
                                         RegexOptions.Multiline | RegexOptions.Singleline)
                .Cast<Match>().Select(Declaration).OrderBy(line => line).ToArray();
            var bound = bindings.GetMethods(BindingFlags.Static | BindingFlags.NonPublic)
                .Where(method => method.IsDefined(typeof(DllImportAttribute)))
                .Select(Binding).OrderBy(line => line).ToArray();
            CollectionAssert.AreEqual(declared, bound);
            Assert.AreEqual(count, declared.Length);
        }

        private static string Declaration(Match match)
        {
            string parameters = match.Groups[3].Value.Trim();
            var types = parameters == "void" ? new string[0] : parameters.Split(',').Select(ParameterType);
            return Line(match.Groups[2].Value, CSharpTypes[Plain(match.Groups[1].Value)], types);
        }

        private static string ParameterType(string parameter)
        {
            string type = Regex.Replace(parameter.Trim(), @"\w+$", "").Trim();
            return type == "const char *" ? "Byte[]" : CSharpTypes[type];
        }

        private static string Plain(string type) => Regex.Replace(type, "const ", "").Trim();

        private static string Binding(MethodInfo method)
        {
            var import = method.GetCustomAttribute<DllImportAttribute>();
            Assert.AreEqual(CallingConvention.Cdecl, import.CallingConvention, method.Name);
            Assert.AreEqual("vantorel", import.Value, method.Name);
            return Line(method.Name, TypeOf(method.ReturnParameter), method.GetParameters().Select(TypeOf));
        }

        private static string TypeOf(ParameterInfo parameter)
        {
            var marshalling = parameter.GetCustomAttribute<MarshalAsAttribute>();
            return parameter.ParameterType.Name + (marshalling == null ? "" : "/" + marshalling.Value);
        }

        private static string Line(string name, string result, IEnumerable<string> parameters)
        {
            return result + " " + name + "(" + string.Join(", ", parameters) + ")";
        }
    }
}
