#pragma once

#include <filesystem>
#include <optional>

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

    // Nothing if there is no file or it isn't a property list of ours.
    std::optional<SavedState> read();

    // Replaces the file by a new one in a single step, once that is safe on the disk; the folder is
    // made if it is missing, and only the user may read the file. A file in the place that can't be
    // read goes on under another name, with "damaged" in it. False if anything fails: then the file
    // is as it was.
    [[nodiscard]] bool write(const SavedState& state) const;

  private:
    [[nodiscard]] std::filesystem::path preferences() const;

    std::filesystem::path home_;
    int prevVersion_ = 10;
};

}  // namespace talvex
