#include "data/folder/NewOutput.h"

#include "data/folder/Refusal.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ballhaven::data {

namespace {

constexpr std::size_t textInMemory = 1 << 20;

/// Runs a step of making the file at a path; what goes wrong in it is a Refusal.
template <typename Step>
void MakeAt(const std::string& path, const Step& step) {
    try {
        step();
    } catch (const std::system_error& error) {
        if (error.code().value() == EEXIST) {
            throw Refusal(path + " is there already, and is not overwritten. Name another file.");
        }
        throw Refusal(path + " could not be made: " + error.code().message() + ".");
    }
}

}  // namespace

NewOutput::NewOutput(std::string userPath) : path(std::move(userPath)) {
    MakeAt(path, [this] {
        const std::filesystem::path whole = std::filesystem::absolute(path);
        if (std::filesystem::exists(std::filesystem::symlink_status(whole))) {
            throw std::system_error(EEXIST, std::generic_category());
        }
        file = std::make_unique<platform::NewFile>(whole.parent_path().string(), whole.filename().string(), "");
    });
}

void NewOutput::Add(std::string_view more) {
    text += more;
    if (text.size() >= textInMemory) {
        MakeAt(path, [this] { file->Add(std::exchange(text, {})); });
    }
}

void NewOutput::Save() {
    MakeAt(path, [this] { file->SaveUnderItsName(text); });
}

void SaveNewOutput(const std::string& path, std::string_view bytes) {
    NewOutput output(path);
    output.Add(bytes);
    output.Save();
}

}  // namespace ballhaven::data
