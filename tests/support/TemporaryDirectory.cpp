#include "support/TemporaryDirectory.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace ballhaven::support {

TemporaryDirectory::TemporaryDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "Ballhaven test XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), name);
    }
    path = name + '/';
}

TemporaryDirectory::~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

void TemporaryDirectory::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream file(*this / name, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + (*this / name));
    }
}

std::string TemporaryDirectory::Read(std::string_view name) const {
    std::ifstream file(*this / name, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + (*this / name));
    }
    std::string bytes(std::filesystem::file_size(*this / name), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

bool TemporaryDirectory::Has(std::string_view name) const {
    return std::filesystem::exists(std::filesystem::symlink_status(*this / name));
}

std::map<std::string, std::string> TemporaryDirectory::Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
        const std::string name = entry.path().filename().string();
        files[name] = Read(name);
    }
    return files;
}

}  // namespace ballhaven::support
