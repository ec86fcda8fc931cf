// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/text.h"

#include <charconv>
#include <cmath>
#include <sstream>

namespace runtime {

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    if (separator.empty()) {
        parts.emplace_back(text);
        return parts;
    }
    std::size_t from = 0;
    for (auto at = text.find(separator); at != std::string_view::npos; at = text.find(separator, from)) {
        parts.emplace_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    parts.emplace_back(text.substr(from));
    return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
    std::string joined;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) joined += separator;
        joined += parts[i];
    }
    return joined;
}

std::size_t CountFields(std::string_view text, std::string_view separator) { return Split(text, separator).size(); }

std::string NthField(std::string_view text, std::string_view separator, std::size_t index) {
    const auto parts = Split(text, separator);
    return index >= 1 && index <= parts.size() ? parts[index - 1] : std::string();
}

std::string withoutCommas(std::string_view text) { return Join(Split(text, ","), ""); }

std::string excerpt(std::string_view text, std::size_t length) {
    std::string quoted;
    std::size_t characters = 0, i = 0;
    for (; i < text.size() && characters < length; ++characters) {
        const auto lead = static_cast<unsigned char>(text[i]);
        // The bytes of one UTF-8 character: its lead byte says how many follow, each 10xxxxxx.
        const std::size_t size = lead < 0x80                   ? 1
                                 : lead >= 0xC2 && lead < 0xE0 ? 2
                                 : lead >= 0xE0 && lead < 0xF0 ? 3
                                 : lead >= 0xF0 && lead < 0xF5 ? 4
                                                               : 0;
        bool whole = size > 0 && i + size <= text.size();
        for (std::size_t k = 1; whole && k < size; ++k)
            whole = (static_cast<unsigned char>(text[i + k]) & 0xC0) == 0x80;
        // C0 and C1 controls and DEL; C1 (U+0080 to U+009F) is 0xC2 0x80 to 0xC2 0x9F.
        const bool control =
            lead < 0x20 || lead == 0x7F || (lead == 0xC2 && whole && static_cast<unsigned char>(text[i + 1]) < 0xA0);
        if (!whole || control) {
            quoted += '?';
            ++i;
        } else {
            quoted.append(text.substr(i, size));
            i += size;
        }
    }
    return i < text.size() ? quoted + "..." : quoted;
}

std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> read;
    std::istringstream in{std::string(line)};
    for (std::string word; in >> word;) read.push_back(word);
    return read;
}

std::optional<double> numberWord(std::string_view word) {
    const std::string plain = withoutCommas(word);
    double value = 0.0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (plain.empty() || error != std::errc{} || end != plain.data() + plain.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::int64_t> wholeNumberWord(std::string_view word) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (word.empty() || error != std::errc{} || end != word.data() + word.size()) return std::nullopt;
    return value;
}

} // namespace runtime
