// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Files read and written whole: a read bounded in size, a write that replaces its target only
// once every byte is on the disk.

#include <cstddef>
#include <string>
#include <string_view>

namespace runtime {

// The file's text into `text`, or why it can't be read (the system's reason, or its size above
// `limit`); empty where it was read whole.
std::string readWhole(const std::string& path, std::size_t limit, std::string& text);

// Writes the text to a new file beside `path` and renames it over `path`: a failure (a full
// disk, a folder that can't be written) leaves no part of a file and the old file as it was.
// Why it failed, or empty.
std::string saveWhole(const std::string& path, std::string_view text);

} // namespace runtime
