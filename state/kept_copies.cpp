#include "state/kept_copies.h"

#include <optional>
#include <string>

#include "state/system_calls.h"

namespace talvex {
namespace {

namespace fs = std::filesystem;

constexpr int kMostCopies = 20;

struct Places {
    bool isKeptAlready = false;
    std::optional<fs::path> free;
    std::optional<fs::path> oldest;
};

bool isEarlier(const timespec& one, const timespec& other) {
    return one.tv_sec != other.tv_sec ? one.tv_sec < other.tv_sec : one.tv_nsec < other.tv_nsec;
}

bool holds(const fs::path& copy, const FileContent& content) {
    if (content.status != FileStatus::read) {
        return false;
    }
    const FileContent present = readFile(copy, content.bytes.size());
    return present.status == FileStatus::read && present.bytes == content.bytes;
}

Places placesFor(const fs::path& path, std::string_view word, const FileContent& content) {
    Places places;
    const FileDescription original = describe(path, Links::taken);
    timespec oldest{};
    for (int number = 1; number <= kMostCopies; ++number) {
        fs::path copy = path;
        copy += '.' + std::string(word) + (number == 1 ? "" : '-' + std::to_string(number));
        const FileDescription present = describe(copy, Links::taken);
        if (present.isAbsent()) {
            places.free = places.free ? places.free : copy;
        } else if (present.isSameFile(original) || holds(copy, content)) {
            places.isKeptAlready = true;
        } else if (present.isPlainFile() &&
                   (!places.oldest || isEarlier(present.status.st_ctim, oldest))) {
            places.oldest = copy;
            oldest = present.status.st_ctim;  // when it was given this name
        }
    }
    return places;
}

// Where a file can have one name only, its bytes are written once more, and what has none to be
// read moves.
std::error_code giveName(const fs::path& path, const fs::path& copy, const FileContent& content) {
    if (retried([&] { return ::link(path.c_str(), copy.c_str()); }) == 0) {
        return {};
    }
    if (errno == EEXIST || errno == ENOENT) {
        return lastError();
    }
    if (content.status == FileStatus::read) {
        return replaceFile(copy, content.bytes);
    }
    return retried([&] { return ::rename(path.c_str(), copy.c_str()); }) == 0 ? std::error_code()
                                                                              : lastError();
}

}  // namespace

std::error_code keepCopy(const fs::path& path, std::string_view word, const FileContent& content) {
    const Places places = placesFor(path, word, content);
    if (places.isKeptAlready) {
        return {};
    }
    if (places.free) {
        return giveName(path, *places.free, content);
    }
    if (!places.oldest || ::unlink(places.oldest->c_str()) != 0) {
        return std::make_error_code(std::errc::file_exists);
    }
    return giveName(path, *places.oldest, content);
}

}  // namespace talvex
