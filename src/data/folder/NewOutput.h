#pragma once

#include "platform/files/DurableFile.h"

#include <memory>
#include <string>
#include <string_view>

namespace ballhaven::data {

/// A file under a path that the user named. It comes into being whole, and never in another one's place.
class NewOutput {
  public:
    /// Throws Refusal where something stands there already, where the file cannot be made, and for a name in the folder
    /// of the data that Ballhaven or this program takes for a file of its own.
    NewOutput(const std::string& dataFolder, std::string userPath);

    /// Puts text behind what the file has. Throws Refusal where it cannot be written.
    void Add(std::string_view more);

    /// Gives the file its name. Throws Refusal; there is no file then.
    void Save();

  private:
    [[nodiscard]] platform::NewFile& File();

    std::string path;
    std::string folder;  ///< the absolute path
    std::string name;
    std::unique_ptr<platform::NewFile> file;  ///< from the first text on that is written
    std::string text;                         ///< not written yet
};

/// Makes a file of these bytes under a path that the user named, whole or not at all. Throws Refusal as above.
void SaveNewOutput(const std::string& dataFolder, const std::string& path, std::string_view bytes);

}  // namespace ballhaven::data
