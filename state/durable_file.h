#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "state/system_calls.h"

// Files that are whole at any moment, whatever happens to the program or the machine.
namespace talvex {

// Absent is what surely isn't there. Unreadable is all else that gives no bytes: an error of the
// disk or of the rights, which may pass, what is no plain file, and a file longer than the limit.
enum class FileStatus { absent, unreadable, read };

struct FileContent {
    FileStatus status = FileStatus::absent;
    std::string bytes;
};

FileContent readFile(const std::filesystem::path& path, std::size_t limit);

// The path of the file to replace: where a link leads, also if nothing is there yet. An error where
// it leads to anything but a plain file.
std::error_code followLinks(std::filesystem::path& path);

// Makes the folder and what is missing above it, for the user alone.
std::error_code makeFolders(const std::filesystem::path& folder);

// Writes a new file beside the path, readable by the user alone, flushes it to the disk, and puts
// it in the path's place. After an error, what was there is as it was.
std::error_code replaceFile(const std::filesystem::path& path, std::string_view bytes);

// Keeps the others of these programs from changing a folder's files at the same time, until the end
// of the scope. It waits no longer than a second, and does without where a file system can't.
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& folder);

  private:
    Descriptor folder_;
};

}  // namespace talvex
