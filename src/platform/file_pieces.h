// The calls of the standard library that writing a file comes down to, for the files of this
// folder.
#pragma once

#include <cerrno>
#include <cstring>
#include <fstream>
#include <span>
#include <string>

#include "platform/files.h"

namespace vemo {

// By the reason that the system gave last, if any.
inline FileError ErrorOf(const std::filesystem::path& path, const char* deed) {
    const int code = errno;
    return {path, std::string(deed) + (code != 0 ? std::string(": ") + std::strerror(code) : "")};
}

// A stream without a buffer of its own hands each write to the system as one call.
inline bool OpenUnbuffered(std::fstream& file, const std::filesystem::path& path,
                           std::ios::openmode mode) {
    file.rdbuf()->pubsetbuf(nullptr, 0);
    errno = 0;
    file.open(path, mode | std::ios::binary);
    return file.is_open();
}

// Whether the system has taken all of it.
inline bool WritePiece(std::fstream& file, std::span<const std::uint8_t> bytes) {
    errno = 0;
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.flush();
    return file.good();
}

}  // namespace vemo
