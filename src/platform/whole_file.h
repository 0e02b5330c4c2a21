// Files read and written in one piece. Names are paths in UTF-8. Every failure is a RuntimeError.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trelvo {

// Error 7 for a file of more than `most` bytes. Neither folders nor devices can be read.
std::string read_whole_file(const std::string& path, std::size_t most);

// The name of the file in that place with so many "~" behind it. Where a name has to be short enough its end gives way.
std::string name_beside(const std::string& path, std::size_t marks);

// The bytes become the contents of the file, made if missing, or it stays as it was: they are written beside it and
// take its name, its rights, and its place behind a link when they are complete on the disk. Until then nobody can read
// them, so that nobody takes them for whole. A device is written as it is.
void replace_whole_file(const std::string& path, std::string_view bytes);

}  // namespace trelvo
