#pragma once
// Writes a file on the memory card so that a crash, a pulled card or a full
// card never leaves a half-written file: the bytes go to a temporary file in
// the same folder, are flushed to the device, and the temporary file is then
// renamed over the old one. A reader sees the old file or the new one, whole.

#include <cstddef>
#include <string>

namespace tarvik {

// False (with the old file untouched) when any step fails. Leftover temporary
// files of earlier interrupted writes of the same file are removed first.
bool writeFileAtomically(const std::string& path, const void* data, std::size_t size);
inline bool writeFileAtomically(const std::string& path, const std::string& bytes) {
    return writeFileAtomically(path, bytes.data(), bytes.size());
}

// Whether a file name is one of this program's temporary files: a write
// killed between creating and renaming it leaves one behind.
bool isAtomicWriteLeftover(const std::string& name);

// Reads at most maxBytes from the start of a file; false when it cannot be
// opened or read. *fileSize (if given) receives the file's full length.
bool readFileHead(const std::string& path, std::size_t maxBytes, std::string* out,
                  std::size_t* fileSize = nullptr);

}  // namespace tarvik
