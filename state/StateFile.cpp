#include "state/StateFile.h"

#include <array>
#include <string_view>
#include <utility>

#include "state/durable_file.h"
#include "state/kept_copies.h"
#include "state/property_list.h"

namespace talvex {
namespace {

struct Version {
    int number;
    std::string_view name;
};

// Newest first.
constexpr auto kVersions = std::to_array<Version>({
    {.number = StateFile::kLastVersion, .name = "com.Quondel.TalvexV1.2.data.plist"},
    {.number = 11, .name = "com.Quondel.Talvex.data.plist"},
    {.number = 10, .name = "com.Quondel.Talvex.data"},
});

}  // namespace

std::filesystem::path StateFile::preferences() const { return home_ / "Library" / "Preferences"; }

std::filesystem::path StateFile::saveDataPath() const {
    return preferences() / kVersions.front().name;
}

std::filesystem::path StateFile::loadDataPath() {
    for (const Version& version : kVersions) {
        std::filesystem::path path = preferences() / version.name;
        prevVersion_ = version.number;
        if (!describe(path, Links::followed).isAbsent()) {
            return path;
        }
    }
    return preferences() / kVersions.back().name;
}

std::optional<SavedState> StateFile::read() {
    if (home_.empty()) {
        return std::nullopt;
    }
    const std::filesystem::path path = loadDataPath();
    FileContent file = readFile(path, kLargestPropertyList);
    if (file.status != FileStatus::read) {
        return std::nullopt;
    }
    const std::optional<PropertyListContent> content = readPropertyList(file.bytes);
    if (content && content->isWhole && path == saveDataPath()) {
        knownBytes_ = std::move(file.bytes);
    }
    return content ? std::optional(savedStateFrom(content->values)) : std::nullopt;
}

std::error_code StateFile::keepWhatIsNotOurs(const std::filesystem::path& path,
                                             const std::string& replacement) const {
    const FileContent present = readFile(path, kLargestPropertyList);
    const bool isOurs = present.status == FileStatus::absent ||
                        (present.status == FileStatus::read &&
                         (present.bytes == knownBytes_ || present.bytes == replacement));
    if (isOurs) {
        return {};
    }
    const auto content = readPropertyList(present.bytes);
    return keepCopy(path, content && content->isWhole ? "other" : "damaged", present);
}

std::error_code StateFile::write(const SavedState& state) {
    if (home_.empty()) {
        return std::make_error_code(std::errc::no_such_file_or_directory);
    }
    std::error_code error = makeFolders(preferences());
    std::filesystem::path path = saveDataPath();
    error = error ? error : followLinks(path);
    if (error) {
        return error;
    }
    std::string bytes = writePropertyList(propertiesOf(state), PropertyListFlavour::xml);
    const FolderLock lock(path.parent_path());
    error = keepWhatIsNotOurs(path, bytes);
    error = error ? error : replaceFile(path, bytes);
    if (!error) {
        knownBytes_ = std::move(bytes);
    }
    return error;
}

}  // namespace talvex
