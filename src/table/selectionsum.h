// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The interest of the selected rows, summed from the Interest cells as they read: commas are
// thousands separators, and the running total is truncated to a whole number at each row.

#include <cstdint>
#include <string>
#include <string_view>

namespace table {

class SelectionSum {
public:
    void add(std::string_view interestCell);
    std::int64_t count() const { return m_count; }
    std::string totalText() const;
    std::string countText() const;

private:
    std::int64_t m_total = 0;
    std::int64_t m_count = 0;
};

} // namespace table
