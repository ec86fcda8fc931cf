// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The number operations the program is written against: reading a number off the head of a
// text, writing numbers back as text, rounding and powers. Amounts are doubles holding whole
// units; counts, days, months and years are signed 64-bit integers.

#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

// The number the text begins with, after leading blanks; 0.0 where it begins with none.
// Reads an optional sign, digits with an optional point and an optional exponent, and stops at
// the first character that can't continue them. Never inf or nan: a value beyond the double
// range saturates to the largest finite double of its sign.
double Val(std::string_view text);
// The same number read into a long double, whose 64-bit mantissa holds every whole number a
// user types up to 2^64: tells 2^53 + 1 from the 2^53 that a double rounds it to.
long double wideVal(std::string_view text);

// The double as plain text: the shortest that reads back as the same double, no trailing
// zeros, and no exponent for whole numbers below 1e15 ("2", "2.5", "144").
std::string Str(double value);
std::string Str(std::int64_t value);

// The value, rounded to a whole number, by a mask of '0' (a digit always shown), '#' (a digit
// shown if the number has it) and ',' (thousands separator). 0 under "#" masks gives "0".
std::string Format(double value, std::string_view mask);

// The nearest whole number, halves away from zero.
double Round(double value);
double Pow(double base, double exponent);

// Truncation toward zero, saturating at the int64 limits; nan gives 0.
std::int64_t toInt64(double value);

// Val of the text, truncated to an integer: how every integer is read from a field.
inline std::int64_t intVal(std::string_view text) { return toInt64(Val(text)); }

} // namespace runtime
