// Writes a picture to standard output, or to a file that appears only once it is complete.
#pragma once

#include <QByteArray>
#include <stdexcept>
#include <string>

/// Why a picture cannot be written, for the user.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Writes under a temporary name in the same folder and renames. An empty name is standard output.
/// On failure throws OutputError and leaves an existing file unchanged; a name that is not UTF-8
/// fails.
void WriteWhole(const std::string& name, const QByteArray& bytes);
