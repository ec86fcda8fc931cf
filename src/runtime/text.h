// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The text operations the program is written against. Fields count from 1.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace runtime {

std::vector<std::string> Split(std::string_view text, std::string_view separator);
std::string Join(const std::vector<std::string>& parts, std::string_view separator);
std::size_t CountFields(std::string_view text, std::string_view separator);
// The field numbered `index` from 1; empty where there is no such field.
std::string NthField(std::string_view text, std::string_view separator, std::size_t index);

// The text with every comma taken out: how amounts with thousands separators are read.
std::string withoutCommas(std::string_view text);

// The words of a line of a plan's text, apart by blanks or tabs.
std::vector<std::string> words(std::string_view line);
// A whole word as a finite number (commas allowed as thousands separators), or as a whole number;
// none where any of it is not.
std::optional<double> numberWord(std::string_view word);
std::optional<std::int64_t> wholeNumberWord(std::string_view word);

// The head of a text a user gave, safe to quote in a message: at most `length` characters,
// "..." after a cut, and every control character (a terminal's escape among them) or byte that is
// not UTF-8 shown as '?'.
std::string excerpt(std::string_view text, std::size_t length = 40);

} // namespace runtime
