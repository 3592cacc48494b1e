#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

// Calls of the system as the saved state needs them: a signal never makes one fail.
namespace talvex {

template <class Call>
auto retried(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

inline std::error_code lastError() { return {errno, std::generic_category()}; }

// An open file, closed at the end of the scope.
class Descriptor {
  public:
    Descriptor(const std::filesystem::path& path, int flags, mode_t mode = 0)
        : number_(retried([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); })) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    // What was written may turn out to be lost only here. An interrupted close has closed.
    bool close() {
        const bool isClosed = isOpen() && (::close(number_) == 0 || errno == EINTR);
        number_ = -1;
        return isClosed;
    }

  private:
    int number_;
};

// What a name stands for: followed to the end of a link, or the link itself.
enum class Links { followed, taken };

struct FileDescription {
    int error = 0;  // as in errno; the rest counts only without one
    struct stat status {};

    [[nodiscard]] bool isAbsent() const { return error == ENOENT || error == ENOTDIR; }
    [[nodiscard]] bool isThere() const { return error == 0; }
    [[nodiscard]] bool isPlainFile() const { return isThere() && S_ISREG(status.st_mode); }
    [[nodiscard]] bool isFolder() const { return isThere() && S_ISDIR(status.st_mode); }
    [[nodiscard]] bool isLink() const { return isThere() && S_ISLNK(status.st_mode); }
    [[nodiscard]] bool isSameFile(const FileDescription& other) const {
        return isThere() && other.isThere() && status.st_dev == other.status.st_dev &&
               status.st_ino == other.status.st_ino;
    }
};

inline FileDescription describe(const std::filesystem::path& path, Links links) {
    FileDescription description;
    const auto ask = links == Links::followed ? ::stat : ::lstat;
    if (retried([&] { return ask(path.c_str(), &description.status); }) != 0) {
        description.error = errno;
    }
    return description;
}

}  // namespace talvex
