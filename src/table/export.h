// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rows of the table as the texts a spreadsheet reads: tab-separated, CSV and HTML.

#include "table/rows.h"

#include <string>
#include <vector>

namespace table {

// Cells joined by tabs, rows each ended by a line feed.
std::string toTsv(const std::vector<Row>& rows);
std::string toTsv(const std::vector<Cells>& rows);
// RFC 4180: fields with a comma, a quote or a line end quoted, rows ended by CR LF.
std::string toCsv(const std::vector<Row>& rows);
std::string toCsv(const std::vector<Cells>& rows);
// A <table> with one <tr> a row and one <td> a cell, the texts escaped.
std::string toHtml(const std::vector<Row>& rows);
std::string toHtml(const std::vector<Cells>& rows);

} // namespace table
