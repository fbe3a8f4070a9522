// Shortens a path for a narrow field. Which paths are shown is in FileFrame, OpenSave and
// WorkingCopy.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The length in bytes of the UTF-8 sequence at the start of `text`, which must not be empty; 1 if
/// there is none.
std::size_t SequenceLength(std::string_view text);

/// A text of more than 40 characters as "..." and its last 37; any other as it is. Counts code
/// points and never cuts one; a byte that is not UTF-8 counts as one.
std::string ShortenPath(const std::string& text);
