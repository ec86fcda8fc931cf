// SPDX-License-Identifier: GPL-3.0-or-later
#include "form/amountfields.h"

#include "engine/loan.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "table/rows.h"

#include <algorithm>

namespace form {

using runtime::Str;
using runtime::Val;

std::string principalForEditing(std::string_view text) { return runtime::withoutCommas(text); }

std::string principalForDisplay(std::string_view text) {
    return runtime::Format(Val(runtime::withoutCommas(text)), table::kAmountMask);
}

std::string plainNumber(std::string_view text) { return Str(Val(text)); }

std::string countText(std::string_view text) {
    return Str(std::min(Val(text), static_cast<double>(engine::kMaxPayments)));
}

FirstRow firstRow(std::string_view plainText, std::string_view count) {
    const std::int64_t n = runtime::intVal(plainText);
    if (n < 1 || static_cast<double>(n) > Val(count)) return {"1", 1};
    return {std::string(plainText), n};
}

} // namespace form
