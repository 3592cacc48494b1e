#include "state/durable_file.h"

#include <sys/file.h>
#include <sys/random.h>

#include <array>
#include <chrono>
#include <thread>

#include "state/system_calls.h"

namespace talvex {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kUserOnly = 0600;
constexpr mode_t kFolderOfUserOnly = 0700;
constexpr std::string_view kTemporaryEnd = ".new";
constexpr std::size_t kLongestTemporaryStart = 200;  // a name has 255 bytes at most
constexpr std::time_t kOrphanAge = 3600;
constexpr int kMostLinks = 40;

bool writeAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            retried([&] { return ::write(file.number(), bytes.data(), bytes.size()); });
        if (written < 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool flush(const Descriptor& file) {
    return retried([&] { return ::fsync(file.number()); }) == 0;
}

// A name that is taken, be it by a pipe or a link, is not ours.
std::error_code writeNewFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, kUserOnly);
    if (!file.isOpen()) {
        return lastError();
    }
    if (writeAll(file, bytes) && flush(file) && file.close()) {
        return {};
    }
    const std::error_code error = lastError();
    ::unlink(path.c_str());
    return error;
}

// Makes a change of names last. A file system that can't isn't a failure of the write.
void flushFolder(const fs::path& folder) {
    const Descriptor directory(folder, O_RDONLY | O_DIRECTORY);
    if (directory.isOpen()) {
        flush(directory);
    }
}

std::string temporaryStart(const fs::path& path) {
    return '.' + path.filename().string().substr(0, kLongestTemporaryStart) + '.';
}

// A name that no other writer has, on whatever machine it runs; empty without random bytes.
fs::path temporaryPath(const fs::path& path) {
    std::array<unsigned char, 8> bytes{};
    const ssize_t count = retried([&] { return ::getrandom(bytes.data(), bytes.size(), 0); });
    if (count != static_cast<ssize_t>(bytes.size())) {
        return {};
    }
    std::string name = temporaryStart(path);
    for (const unsigned char byte : bytes) {
        name += "0123456789abcdef"[byte >> 4U];
        name += "0123456789abcdef"[byte & 15U];
    }
    return path.parent_path() / (name + std::string(kTemporaryEnd));
}

// What programs left behind that were killed while they wrote. Whose a younger file is can't be
// known: its writer may run on another machine.
void removeOrphans(const fs::path& path) {
    const std::string start = temporaryStart(path);
    const std::time_t now = std::time(nullptr);
    std::error_code error;
    for (fs::directory_iterator entry(path.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(start) && name.ends_with(kTemporaryEnd)) {
            const FileDescription orphan = describe(entry->path(), Links::taken);
            if (orphan.isPlainFile() && now - orphan.status.st_mtime > kOrphanAge) {
                ::unlink(entry->path().c_str());
            }
        }
    }
}

std::error_code failure(std::errc reason) { return std::make_error_code(reason); }

}  // namespace

FileContent readFile(const fs::path& path, std::size_t limit) {
    const FileDescription description = describe(path, Links::followed);
    if (description.isAbsent()) {
        return {};
    }
    FileContent content{.status = FileStatus::unreadable, .bytes = {}};
    if (!description.isPlainFile()) {
        return content;
    }
    // Not to wait for the other end, should a pipe have come there meanwhile.
    const Descriptor file(path, O_RDONLY | O_NONBLOCK);
    std::array<char, 4096> buffer{};
    while (file.isOpen() && content.bytes.size() <= limit) {
        const ssize_t count =
            retried([&] { return ::read(file.number(), buffer.data(), buffer.size()); });
        if (count <= 0) {
            content.status = count == 0 ? FileStatus::read : FileStatus::unreadable;
            break;
        }
        content.bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    if (content.status == FileStatus::unreadable) {
        content.bytes.clear();
    }
    return content;
}

std::error_code followLinks(fs::path& path) {
    FileDescription description = describe(path, Links::taken);
    if (!description.isLink()) {
        return {};
    }
    for (int count = 0; description.isLink(); ++count) {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error || count == kMostLinks) {
            return error ? error : failure(std::errc::too_many_symbolic_link_levels);
        }
        path = path.parent_path() / target;
        description = describe(path, Links::taken);
    }
    if (description.isFolder()) {
        return failure(std::errc::is_a_directory);
    }
    return description.isAbsent() || description.isPlainFile()
               ? std::error_code()
               : failure(std::errc::operation_not_supported);
}

std::error_code makeFolders(const fs::path& folder) {
    const FileDescription present = describe(folder, Links::followed);
    if (present.isThere()) {
        return present.isFolder() ? std::error_code() : failure(std::errc::not_a_directory);
    }
    const fs::path parent = folder.parent_path();
    if (parent != folder) {
        if (const std::error_code error = makeFolders(parent)) {
            return error;
        }
    }
    if (retried([&] { return ::mkdir(folder.c_str(), kFolderOfUserOnly); }) != 0) {
        const std::error_code error = lastError();
        return describe(folder, Links::followed).isFolder() ? std::error_code() : error;
    }
    flushFolder(parent);
    return {};
}

std::error_code replaceFile(const fs::path& path, std::string_view bytes) {
    removeOrphans(path);
    const fs::path temporary = temporaryPath(path);
    if (temporary.empty()) {
        return failure(std::errc::resource_unavailable_try_again);
    }
    if (const std::error_code error = writeNewFile(temporary, bytes)) {
        return error;
    }
    if (retried([&] { return ::rename(temporary.c_str(), path.c_str()); }) != 0) {
        const std::error_code error = lastError();
        ::unlink(temporary.c_str());
        return error;
    }
    flushFolder(path.parent_path());
    return {};
}

FolderLock::FolderLock(const fs::path& folder) : folder_(folder, O_RDONLY | O_DIRECTORY) {
    constexpr int kTries = 100;
    for (int count = 0; folder_.isOpen() && count < kTries; ++count) {
        const int result = retried([&] { return ::flock(folder_.number(), LOCK_EX | LOCK_NB); });
        if (result == 0 || errno != EWOULDBLOCK) {
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

}  // namespace talvex
