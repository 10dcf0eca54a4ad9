#include "data/folder/NewOutput.h"

#include "data/folder/Refusal.h"
#include "platform/files/DurableFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace ballhaven::data {

void SaveNewOutput(const std::string& path, std::string_view bytes) {
    const std::filesystem::path file = std::filesystem::absolute(path);
    try {
        platform::NewFile(file.parent_path().string(), file.filename().string(), "").SaveUnderItsName(bytes);
    } catch (const std::system_error& error) {
        if (error.code().value() == EEXIST) {
            throw Refusal(path + " is there already, and is not overwritten. Name another file.");
        }
        throw Refusal(path + " could not be made: " + error.code().message() + ".");
    }
}

}  // namespace ballhaven::data
