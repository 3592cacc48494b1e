#include "state/durable_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

namespace talvex {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kUserOnly = 0600;
constexpr std::string_view kTemporaryEnd = ".new";
constexpr int kMostCopies = 1000;

// An open file, closed at the end of the scope.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    bool close() {
        const bool isClosed = isOpen() && ::close(number_) == 0;
        number_ = -1;
        return isClosed;
    }

  private:
    int number_;
};

bool writeAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool writeNewFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, kUserOnly));
    return file.isOpen() && ::fchmod(file.number(), kUserOnly) == 0 && writeAll(file, bytes) &&
           ::fsync(file.number()) == 0 && file.close();
}

// Makes a change of names last. A file system that can't isn't a failure of the write.
void flushFolder(const fs::path& folder) {
    const Descriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.isOpen()) {
        ::fsync(directory.number());
    }
}

std::string temporaryStart(const fs::path& path) { return '.' + path.filename().string() + '.'; }

// Of each program its own, so that two of them don't write into one.
fs::path temporaryPath(const fs::path& path) {
    return path.parent_path() /
           (temporaryStart(path) + std::to_string(::getpid()) + std::string(kTemporaryEnd));
}

// What programs left behind that were killed while they wrote.
void removeOrphans(const fs::path& path) {
    const std::string start = temporaryStart(path);
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(path.parent_path(), error)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(start) && name.ends_with(kTemporaryEnd)) {
            const int writer = std::atoi(name.c_str() + start.size());
            if (writer > 0 && ::kill(writer, 0) != 0 && errno == ESRCH) {
                fs::remove(entry.path(), error);
            }
        }
    }
}

// A link stays a link: the file that it leads to is replaced.
fs::path resolved(const fs::path& path) {
    std::error_code error;
    const fs::path target = fs::is_symlink(path, error) ? fs::canonical(path, error) : fs::path();
    return target.empty() ? path : target;
}

}  // namespace

std::optional<std::string> readFile(const fs::path& path, std::size_t limit) {
    // Not to wait for the other end of a pipe.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat description {};
    if (!file.isOpen() || ::fstat(file.number(), &description) != 0 ||
        !S_ISREG(description.st_mode) || description.st_size < 0 ||
        static_cast<std::size_t>(description.st_size) > limit) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, 4096> buffer{};
    while (bytes.size() <= limit) {
        const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
        if (count == 0) {
            return bytes;
        }
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        bytes.append(buffer.data(), count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

bool replaceFile(const fs::path& path, std::string_view bytes) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    const fs::path target = resolved(path);
    removeOrphans(target);
    const fs::path temporary = temporaryPath(target);
    if (!writeNewFile(temporary, bytes) || ::rename(temporary.c_str(), target.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    flushFolder(target.parent_path());
    return true;
}

bool keepCopyUnderAnotherName(const fs::path& path) {
    const fs::path target = resolved(path);
    for (int number = 1; number <= kMostCopies; ++number) {
        fs::path copy = target;
        copy += number == 1 ? ".damaged" : ".damaged-" + std::to_string(number);
        if (::link(target.c_str(), copy.c_str()) == 0) {
            return true;
        }
        // Where files have one name only, the file moves.
        if ((errno == EPERM || errno == EOPNOTSUPP) && !fs::exists(copy)) {
            return ::rename(target.c_str(), copy.c_str()) == 0;
        }
        if (errno != EEXIST) {
            return false;
        }
    }
    return false;
}

}  // namespace talvex
