// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/export.h"

#include <functional>

#include <functional>

namespace table {
namespace {

std::string csvField(const std::string& cell) {
    if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
    std::string quoted = "\"";
    for (const char c : cell) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

std::string htmlEscaped(const std::string& cell) {
    std::string escaped;
    for (const char c : cell) {
        switch (c) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        default: escaped += c;
        }
    }
    return escaped;
}

template <typename Rows, typename Cell>
std::string joined(const Rows& rows, Cell cell, std::string_view separator, std::string_view rowStart,
                   std::string_view rowEnd) {
    std::string text;
    for (const auto& row : rows) {
        text += rowStart;
        for (std::size_t c = 0; c < row.size(); ++c) {
            if (c > 0) text += separator;
            text += cell(row[c]);
        }
        text += rowEnd;
    }
    return text;
}

} // namespace

std::string toTsv(const std::vector<Row>& rows) { return joined(rows, std::identity{}, "\t", "", "\n"); }
std::string toTsv(const std::vector<Cells>& rows) { return joined(rows, std::identity{}, "\t", "", "\n"); }
std::string toCsv(const std::vector<Row>& rows) { return joined(rows, csvField, ",", "", "\r\n"); }
std::string toCsv(const std::vector<Cells>& rows) { return joined(rows, csvField, ",", "", "\r\n"); }

template <typename Rows> std::string html(const Rows& rows) {
    const auto cell = [](const std::string& text) { return "<td>" + htmlEscaped(text) + "</td>"; };
    return "<table>" + joined(rows, cell, "", "<tr>", "</tr>") + "</table>";
}

std::string toHtml(const std::vector<Row>& rows) { return html(rows); }
std::string toHtml(const std::vector<Cells>& rows) { return html(rows); }

} // namespace table
