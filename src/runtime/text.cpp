// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/text.h"

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

} // namespace runtime
