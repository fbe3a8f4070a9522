// The bytes of a file, straight from the system: no buffer between it and a reader that has its
// own.
#pragma once

#include <streambuf>

/// A stream that can only be read in pieces. A read that fails throws std::system_error.
class FileSource : public std::streambuf {
public:
    /// Takes over an open descriptor; standard input stays open.
    explicit FileSource(int descriptor) : file(descriptor) {}
    ~FileSource() override;
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;

protected:
    std::streamsize xsgetn(char* to, std::streamsize wanted) override;

private:
    int file;
};
