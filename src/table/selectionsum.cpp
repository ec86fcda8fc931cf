// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/selectionsum.h"

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "table/rows.h"

namespace table {

void SelectionSum::add(std::string_view interestCell) {
    const double interest = runtime::Val(runtime::withoutCommas(interestCell));
    m_total = runtime::toInt64(interest + static_cast<double>(m_total));
    ++m_count;
}

std::string SelectionSum::totalText() const {
    return runtime::Format(static_cast<double>(m_total), table::kAmountMask);
}

std::string SelectionSum::countText() const { return runtime::Str(m_count); }

} // namespace table
