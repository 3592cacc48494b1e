#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

#include "state/durable_file.h"

namespace talvex {

// Gives a file another name as well, made of its own and the word, before it is replaced; bytes
// that have such a name already get no second one. There are at most 20 names of a word: then the
// oldest file gives way. `content` is what the file was found to hold.
std::error_code keepCopy(const std::filesystem::path& path, std::string_view word,
                         const FileContent& content);

}  // namespace talvex
