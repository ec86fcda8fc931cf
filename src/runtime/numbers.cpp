// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace runtime {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || c == '\t'; }

// The decimal magnitude of a digit string with an exponent: where its first significant digit
// stands. Only used to tell overflow from underflow when a number does not fit a double.
std::int64_t magnitude(std::string_view mantissa, std::int64_t exponent) {
    const auto point = mantissa.find('.');
    const std::string_view whole = mantissa.substr(0, point);
    const auto firstWhole = whole.find_first_not_of('0');
    if (firstWhole != std::string_view::npos) return exponent + static_cast<std::int64_t>(whole.size() - firstWhole);
    if (point == std::string_view::npos) return std::numeric_limits<std::int64_t>::min();
    const std::string_view fraction = mantissa.substr(point + 1);
    const auto firstFraction = fraction.find_first_not_of('0');
    if (firstFraction == std::string_view::npos) return std::numeric_limits<std::int64_t>::min();
    return exponent - static_cast<std::int64_t>(firstFraction);
}

// The number at the head of the text in the floating type Real (see Val).
template <typename Real> Real valueAt(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i])) ++i;

    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';

    const std::size_t start = i;
    while (i < text.size() && isDigit(text[i])) ++i;
    bool hasDigits = i > start;
    if (i < text.size() && text[i] == '.') {
        const std::size_t afterPoint = ++i;
        while (i < text.size() && isDigit(text[i])) ++i;
        hasDigits = hasDigits || i > afterPoint;
    }
    if (!hasDigits) return Real(0);
    std::size_t end = i;

    // An exponent counts only with at least one digit; its value saturates for the magnitude test.
    std::int64_t exponent = 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        bool negativeExponent = false;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) negativeExponent = text[j++] == '-';
        const std::size_t exponentStart = j;
        while (j < text.size() && isDigit(text[j])) {
            exponent = std::min<std::int64_t>(exponent * 10 + (text[j] - '0'), 1'000'000'000);
            ++j;
        }
        if (j > exponentStart) {
            end = j;
            if (negativeExponent) exponent = -exponent;
        } else {
            exponent = 0;
        }
    }

    const std::string_view number = text.substr(start, end - start);
    Real value = 0;
    const auto [ptr, error] =
        std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::general);
    if (error == std::errc::result_out_of_range) {
        const auto exponentAt = number.find_first_of("eE");
        const bool overflow = magnitude(number.substr(0, exponentAt), exponent) > 0;
        value = overflow ? std::numeric_limits<Real>::max() : Real(0);
    } else if (error != std::errc{}) {
        value = 0;
    }
    return negative ? -value : value;
}

} // namespace

double Val(std::string_view text) { return valueAt<double>(text); }

long double wideVal(std::string_view text) { return valueAt<long double>(text); }

std::string Str(std::int64_t value) { return std::to_string(value); }

std::string Str(double value) {
    if (!std::isfinite(value)) return "0";
    if (value == 0.0) return "0";
    if (value == std::trunc(value) && std::fabs(value) < 1e15) return Str(toInt64(value));

    std::array<char, 400> buffer{};
    const bool plain = std::fabs(value) >= 1e-6 && std::fabs(value) < 1e15;
    const auto result =
        plain ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed)
              : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return std::string(buffer.data(), result.ptr);
}

std::string Format(double value, std::string_view mask) {
    const double whole = Round(value);
    if (!std::isfinite(whole)) return "0";

    // The exact digits of the whole number, without sign: through int64 where it fits.
    std::array<char, 400> digits; // written by to_chars before any is read
    char* const first = digits.data();
    const double magnitude = std::fabs(whole);
    const auto written = magnitude < 9.2e18
                             ? std::to_chars(first, first + digits.size(), static_cast<std::uint64_t>(magnitude))
                             : std::to_chars(first, first + digits.size(), magnitude, std::chars_format::fixed, 0);
    const auto count = static_cast<std::size_t>(written.ptr - first);

    const auto zeros = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '0'));
    const std::size_t padded = std::max(count, zeros);
    const bool grouped = mask.find(',') != std::string_view::npos;

    // Sign, padding zeros, digits and separators, written once into a buffer of their own.
    std::array<char, 2 * digits.size()> text; // written before any is read
    std::size_t length = 0;
    if (whole < 0.0) text[length++] = '-';
    for (std::size_t i = 0; i < padded; ++i) {
        if (grouped && i > 0 && (padded - i) % 3 == 0) text[length++] = ',';
        text[length++] = i < padded - count ? '0' : digits[i - (padded - count)];
    }
    return std::string(text.data(), length);
}

double Round(double value) { return std::round(value); }

double Pow(double base, double exponent) { return std::pow(base, exponent); }

std::int64_t toInt64(double value) {
    if (std::isnan(value)) return 0;
    constexpr double limit = 9223372036854775808.0; // 2^63, exactly representable
    if (value >= limit) return std::numeric_limits<std::int64_t>::max();
    if (value < -limit) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

} // namespace runtime
