// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the principal, rate, count and first-row fields correct what was typed.

#include <cstdint>
#include <string>
#include <string_view>

namespace form {

// The principal while it is edited: plain digits, every comma taken out.
std::string principalForEditing(std::string_view text);
// The principal otherwise: a whole number with thousands separators.
std::string principalForDisplay(std::string_view text);

// The number the text begins with, written plainly ("2.0" becomes "2"): the rate, and the
// first row before its range is checked.
std::string plainNumber(std::string_view text);
// The count likewise, and no more than the payments a schedule walks.
std::string countText(std::string_view text);

// The first payment listed: outside 1 to the count it falls back to 1.
struct FirstRow {
    std::string text;
    std::int64_t number;
};
FirstRow firstRow(std::string_view plainText, std::string_view countText);

} // namespace form
