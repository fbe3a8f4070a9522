// Where a picture goes: a file that is there when it is whole, or standard output.
#pragma once

#include <QByteArray>
#include <stdexcept>
#include <string>

/// Why a picture cannot be written, in words for the user.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Writes under a temporary name in the same folder and renames. An empty name is standard output.
/// Throws OutputError, and leaves what was under the name as it was.
void WriteWhole(const std::string& name, const QByteArray& bytes);
