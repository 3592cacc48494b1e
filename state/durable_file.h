#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Files that are whole at any moment, whatever happens to the program or the machine.
namespace talvex {

// The bytes of a file; nothing if it can't be read, is no plain file, or is longer than the limit.
std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit);

// Writes a new file beside the path, readable by the user alone, flushes it to the disk, and puts
// it in the path's place; the folder is made if it is missing. False if any step fails: then what
// was there is as it was.
bool replaceFile(const std::filesystem::path& path, std::string_view bytes);

// Gives the file another name as well, derived from its own, that no file has yet. What the path
// names stays there until it is replaced.
bool keepCopyUnderAnotherName(const std::filesystem::path& path);

}  // namespace talvex
