// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The text operations the program is written against. Fields count from 1.

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

} // namespace runtime
