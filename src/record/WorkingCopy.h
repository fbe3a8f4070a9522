// The working copy: rebuilding it from the loaded copy, and how a path is shown in a narrow field.
#pragma once

#include <string>
#include <string_view>

struct RecordEdit;

constexpr std::string_view NewRecordCaption = "(New)";  // the record has no file yet
constexpr std::string_view NoFileText = "(None)";       // no stratigraphic file is attached

/// Throws the working copy away, rebuilds it from the loaded copy and shows its first phase. A
/// failure ends it where it is, with a message.
void ReadData(RecordEdit& form);

/// Drops all changes since the last apply; a record without a file becomes empty.
void cmdReset_Click(RecordEdit& form);

/// A text of more than 40 characters as "..." and its last 37; any other as it is. Counts code
/// points and never cuts one; a byte that is not UTF-8 counts as one.
std::string ShortenPath(const std::string& text);
