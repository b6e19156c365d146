#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace morvane {
// A folder of its own below the system's temporary one, which does not become the current one;
// removed with everything in it at the end.
class TEMPORARY_FOLDER {
public:
    TEMPORARY_FOLDER() {
        std::string name = (std::filesystem::temp_directory_path() / "morvane-XXXXXX").string();
        if (::mkdtemp(name.data())) folder = name;
    }
    ~TEMPORARY_FOLDER() {
        std::error_code error;
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, error);
        if (!folder.empty()) std::filesystem::remove_all(folder, error);
    }
    TEMPORARY_FOLDER(const TEMPORARY_FOLDER &) = delete;
    TEMPORARY_FOLDER &operator=(const TEMPORARY_FOLDER &) = delete;

    std::string PATH(const std::string &name = {}) const {
        return name.empty() ? folder : folder + "/" + name;
    }
    std::string PUT(const std::string &name, const std::string &bytes) const {
        std::ofstream(PATH(name), std::ios::binary) << bytes;
        return PATH(name);
    }
    std::string GET(const std::string &name) const {
        std::ifstream file(PATH(name), std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
    // Count of the entries in the folder, hidden ones too.
    long ENTRIES() const {
        return std::distance(std::filesystem::directory_iterator(folder),
                             std::filesystem::directory_iterator());
    }

private:
    std::string folder;
};
} // namespace morvane
