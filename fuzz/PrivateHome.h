#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

#include "fuzz_input.h"
#include "state/StateFile.h"

namespace talvex {

// A home folder that nobody else uses, with a place for the saved state; it goes with the object.
class PrivateHome {
  public:
    PrivateHome()
        : folder_((std::filesystem::temp_directory_path() / "talvex-fuzz-XXXXXX").string()) {
        require(::mkdtemp(folder_.data()) != nullptr);
        std::filesystem::create_directories(file().parent_path());
    }
    PrivateHome(const PrivateHome&) = delete;
    PrivateHome& operator=(const PrivateHome&) = delete;
    ~PrivateHome() { std::filesystem::remove_all(folder_); }

    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] std::filesystem::path file() const { return StateFile(folder_).saveDataPath(); }

  private:
    std::string folder_;
};

}  // namespace talvex
