#include "data/folder/CopyArchive.h"

#include "data/folder/FolderFiles.h"
#include "data/folder/Refusal.h"
#include "fuzz/FuzzInput.h"

#include <algorithm>
#include <string_view>

namespace ballhaven::fuzz {
namespace {

bool IsAFileOfAFolder(const data::FileContents::value_type& file) {
    const auto known = data::AllFolderFiles();
    const auto found = std::ranges::find(known, file.first, &data::FolderFile::name);
    return found != known.end() &&
           (!file.second || static_cast<std::int64_t>(file.second->size()) <= found->FormatLength());
}

/// Whatever the bytes: they are refused, or files of a folder that make the same copy again.
void CheckBytes(std::string_view bytes) {
    try {
        const data::FileContents files = data::FilesOf(bytes, "copy.zip");
        Expect(std::ranges::all_of(files, IsAFileOfAFolder), "only files of a folder are taken, none too long");
        Expect(data::FilesOf(data::ArchiveOf(files), "copy.zip") == files, "what was taken makes a whole copy");
    } catch (const data::Refusal&) {
    }
}

/// A copy in which some bytes were changed gives its own files or none.
void CheckDamage(FuzzInput& input) {
    const data::FileContents files{
        {"GAME01.CDB", input.File({64, 6464})}, {"GAME02.CDB", std::nullopt}, {"LOTTOSYS", "table"}};
    std::string archive = data::ArchiveOf(files);
    const int changes = 1 + input.Choice(4);
    for (int change = 0; change < changes; ++change) {
        const std::size_t place =
            (static_cast<std::size_t>(input.Choice(256)) * 256 + static_cast<std::size_t>(input.Choice(256))) %
            archive.size();
        archive[place] = static_cast<char>(input.Choice(256));
    }
    try {
        Expect(data::FilesOf(archive, "copy.zip") == files, "a damaged copy gives no other files");
    } catch (const data::Refusal&) {
    }
}

}  // namespace
}  // namespace ballhaven::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ballhaven::fuzz;
    FuzzInput input(data, size);
    if (input.Choice(2) == 0) {
        CheckDamage(input);
    } else {
        CheckBytes(input.Rest());
    }
    return 0;
}
