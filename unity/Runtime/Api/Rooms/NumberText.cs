using System.Globalization;
using System.Text;

namespace Vantorel
{
    /// <summary>JSON's numbers, read from bytes without a string where arithmetic gives the nearest double.</summary>
    internal static class NumberText
    {
        private const long ExactMantissa = 1L << 53;
        private const int MostDigits = 18;  // that a long holds

        // Exact as doubles, like every whole number below 2^53: one division or multiplication rounds once.
        private static readonly double[] PowersOfTen =
        {
            1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19,
            1e20, 1e21, 1e22,
        };

        /// <summary>Goes on behind the number; NaN when there is none, or one beyond a double.</summary>
        internal static double Take(byte[] text, ref int at, int end)
        {
            int from = at;
            bool isNegative = TakeLetter(text, ref at, end, '-');
            long mantissa = 0;
            int first = at;
            int whole = TakeDigits(text, ref at, end, ref mantissa), fraction = 0, exponent = 0;
            if (whole == 0 || (whole > 1 && text[first] == '0')) return double.NaN;
            if (TakeLetter(text, ref at, end, '.'))
            {
                fraction = TakeDigits(text, ref at, end, ref mantissa);
                if (fraction == 0) return double.NaN;
            }
            bool hasExponent = TakeLetter(text, ref at, end, 'e') || TakeLetter(text, ref at, end, 'E');
            if (hasExponent && !TakeExponent(text, ref at, end, out exponent)) return double.NaN;
            int power = exponent - fraction;
            if (whole + fraction > MostDigits || mantissa > ExactMantissa || power < -22 || power > 22)
                return Parse(Encoding.ASCII.GetString(text, from, at - from));
            double number = power < 0 ? mantissa / PowersOfTen[-power] : mantissa * PowersOfTen[power];
            return isNegative ? -number : number;
        }

        private static double Parse(string number)
        {
            bool fits = double.TryParse(number, NumberStyles.Float, CultureInfo.InvariantCulture, out double parsed) &&
                        !double.IsInfinity(parsed);
            return fits ? parsed : double.NaN;
        }

        private static bool TakeExponent(byte[] text, ref int at, int end, out int exponent)
        {
            bool isNegative = TakeLetter(text, ref at, end, '-');
            if (!isNegative) TakeLetter(text, ref at, end, '+');
            long digits = 0;
            int count = TakeDigits(text, ref at, end, ref digits);
            // A longer one is left to Parse.
            exponent = count > 4 ? int.MaxValue / 2 : (int)(isNegative ? -digits : digits);
            return count > 0;
        }

        /// <summary>How many there were; beyond what a long holds they are passed over.</summary>
        private static int TakeDigits(byte[] text, ref int at, int end, ref long value)
        {
            int first = at;
            for (; at < end && text[at] >= '0' && text[at] <= '9'; ++at)
                if (value < long.MaxValue / 10 - 1) value = value * 10 + (text[at] - '0');
            return at - first;
        }

        private static bool TakeLetter(byte[] text, ref int at, int end, char letter)
        {
            if (at >= end || text[at] != letter) return false;
            ++at;
            return true;
        }
    }
}
