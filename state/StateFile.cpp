#include "state/StateFile.h"

#include <array>
#include <string_view>
#include <system_error>

#include "state/durable_file.h"
#include "state/property_list.h"

namespace talvex {
namespace {

struct Version {
    int number;
    std::string_view name;
};

// Newest first.
constexpr std::array<Version, 3> kVersions{{
    {.number = StateFile::kLastVersion, .name = "com.Quondel.TalvexV1.2.data.plist"},
    {.number = 11, .name = "com.Quondel.Talvex.data.plist"},
    {.number = 10, .name = "com.Quondel.Talvex.data"},
}};

std::optional<PropertyDictionary> dictionaryIn(const std::filesystem::path& path) {
    const std::optional<std::string> bytes = readFile(path, kLargestPropertyList);
    return bytes ? readPropertyList(*bytes) : std::nullopt;
}

}  // namespace

std::filesystem::path StateFile::preferences() const { return home_ / "Library" / "Preferences"; }

std::filesystem::path StateFile::saveDataPath() const {
    return preferences() / kVersions.front().name;
}

std::filesystem::path StateFile::loadDataPath() {
    for (const Version& version : kVersions) {
        std::filesystem::path path = preferences() / version.name;
        std::error_code error;
        prevVersion_ = version.number;
        if (std::filesystem::exists(path, error)) {
            return path;
        }
    }
    return preferences() / kVersions.back().name;
}

std::optional<SavedState> StateFile::read() {
    if (home_.empty()) {
        return std::nullopt;
    }
    const auto dictionary = dictionaryIn(loadDataPath());
    return dictionary ? std::optional(savedStateFrom(*dictionary)) : std::nullopt;
}

bool StateFile::write(const SavedState& state) const {
    if (home_.empty()) {
        return false;
    }
    const std::filesystem::path path = saveDataPath();
    std::error_code error;
    if (std::filesystem::exists(path, error) && !dictionaryIn(path) &&
        !keepCopyUnderAnotherName(path)) {
        return false;
    }
    return replaceFile(path, writePropertyList(propertiesOf(state), PropertyListFlavour::xml));
}

}  // namespace talvex
