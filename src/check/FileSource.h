// An unbuffered file stream, for a reader that has its own buffer.
#pragma once

#include <streambuf>

/// A stream that can only be read with sgetn. A failed read throws std::system_error.
class FileSource : public std::streambuf {
public:
    /// Takes ownership of an open descriptor; standard input is not closed.
    explicit FileSource(int descriptor) : file(descriptor) {}
    ~FileSource() override;
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;

protected:
    std::streamsize xsgetn(char* to, std::streamsize wanted) override;

private:
    int file;
};
