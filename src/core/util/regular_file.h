#pragma once
// Opening a file of the card for reading. open() on a FIFO waits for a
// writer, and on some devices for the device, before the type can be looked
// at; a card may hold anything in a file's place. So every file is opened
// without blocking and kept only when the open descriptor is a regular file.

#include <string>

struct stat;

namespace tarvik {

// A descriptor for reading (close-on-exec), or -1 when the path cannot be
// opened or is not a regular file. *info (if given) receives its fstat.
int openRegularFile(const std::string& path, struct stat* info = nullptr);

}  // namespace tarvik
