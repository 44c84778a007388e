#pragma once
// Copies a file off the card byte for byte, hashing it on the way: each file
// is read once, and the hash is of the bytes that were written.

#include <string>

namespace tarvik {

// The copy's SHA-256 in hex, or "" (with why) when the source is no regular
// file or a read or write fails; a failed copy leaves no file at `to`.
std::string copyWithSha256(const std::string& from, const std::string& to, std::string* why);

// The SHA-256 of a file of the export's own, in hex, or "".
std::string sha256OfFile(const std::string& path);

}  // namespace tarvik
