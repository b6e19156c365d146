#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace morvane {
// A new empty folder that is the current directory while it lives.
class SCRATCH_FOLDER {
public:
    SCRATCH_FOLDER() : before(std::filesystem::current_path()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "morvaneXXXXXX").string();
        if (mkdtemp(pattern.data())) folder = pattern;
        std::filesystem::current_path(folder);
    }
    ~SCRATCH_FOLDER() {
        std::error_code ignored;
        std::filesystem::current_path(before, ignored);
        std::filesystem::remove_all(folder, ignored);
    }
    SCRATCH_FOLDER(const SCRATCH_FOLDER &) = delete;
    SCRATCH_FOLDER &operator=(const SCRATCH_FOLDER &) = delete;

    void WRITE(const std::string &name, std::string_view text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    std::string READ(const std::string &name) const {
        std::ostringstream text;
        text << std::ifstream(folder / name, std::ios::binary).rdbuf();
        return text.str();
    }
    bool HAS(const std::string &name) const { return std::filesystem::exists(folder / name); }
    long FILES() const { // entries, hidden ones too
        return std::distance(std::filesystem::directory_iterator(folder), {});
    }

private:
    std::filesystem::path before, folder;
};
} // namespace morvane
