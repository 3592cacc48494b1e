#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "state/SavedState.h"

namespace talvex {

// The file of the saved state, in the preferences folder of a home folder. The name has changed
// twice; older files are read and left alone.
class StateFile {
  public:
    static constexpr int kLastVersion = 12;

    // Without a home folder there is no file: nothing to read, and writing fails.
    explicit StateFile(std::filesystem::path home) : home_(std::move(home)) {}

    // The path to read from: of the newest version that has a file, else of the oldest. Sets
    // `prevVersion`.
    std::filesystem::path loadDataPath();
    [[nodiscard]] std::filesystem::path saveDataPath() const;
    // The version of the file found last: 12, 11 or 10.
    [[nodiscard]] int prevVersion() const { return prevVersion_; }

    // Nothing if there is no file, if it can't be read now, or if it isn't a property list.
    std::optional<SavedState> read();

    // Replaces the file by a new one in a single step, once that is safe on the disk; folders that
    // are missing are made, and only the user may look into what is made. A file in the place that
    // this object has neither read as a whole nor written goes on under another name: with
    // "damaged" in it, or with "other" if it is a property list that came there meanwhile. After an
    // error the file is as it was.
    [[nodiscard]] std::error_code write(const SavedState& state);

  private:
    [[nodiscard]] std::filesystem::path preferences() const;
    [[nodiscard]] std::error_code keepWhatIsNotOurs(const std::filesystem::path& path,
                                                    const std::string& replacement) const;

    std::filesystem::path home_;
    int prevVersion_ = 10;
    std::optional<std::string> knownBytes_;  // of the newest version's file
};

}  // namespace talvex
