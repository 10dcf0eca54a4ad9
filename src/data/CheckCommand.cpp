#include "data/CheckCommand.h"

#include "data/checks/FolderCheck.h"
#include "data/checks/LeftOvers.h"
#include "data/folder/CountText.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "platform/files/FileSystem.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

namespace ballhaven::data {

namespace {

using Findings = std::vector<Finding>;

auto CountOf(const Findings& findings, Remedy remedy) {
    return std::ranges::count(findings, remedy, &Finding::remedy);
}

/// Lists the findings with one remedy, each behind a word.
void List(const Findings& findings, Remedy remedy, const char* word, const Console& console) {
    for (const Finding& finding : findings) {
        if (finding.remedy == remedy) {
            console.out << word << LineOf(finding) << '\n';
        }
    }
}

void TellAll(const CheckedFolder& checked, const Console& console) {
    for (const Finding& finding : checked.findings) {
        const bool mends = finding.remedy == Remedy::Mend;
        console.out << (IsFault(finding) ? "" : "note: ") << LineOf(finding)
                    << (mends ? " \"check --mend\" repairs it." : "") << '\n';
    }
    const auto mendable = CountOf(checked.findings, Remedy::Mend);
    const auto faults = mendable + CountOf(checked.findings, Remedy::User);
    console.out << CountText(checked.fileCount, "file") << " checked: ";
    if (faults == 0) {
        console.out << "nothing is wrong.\n";
    } else {
        console.out << CountText(faults, "finding") << ", of which \"check --mend\" repairs " << mendable << ".\n";
    }
}

void RemoveLeftOvers(const WorkFolder& folder, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        if (const int result = platform::fileSystem.remove(folder.Path() + name); result < 0) {
            throw Refusal(folder.Path() + name + " cannot be removed: " + std::generic_category().message(-result) +
                          ". Everything else has been mended.");
        }
    }
}

/// Repairs what can be repaired. Returns the words about what was changed, empty where nothing was.
std::string MendAll(const std::string& path, const Console& console) {
    const bool finishes = HasDecidedChange(path);
    const WorkFolder folder(path);
    if (finishes) {
        console.out << "mended: A change that was decided has been brought to its end.\n";
    }
    const CheckedFolder found = CheckFolder(folder.Path());
    std::string copy;
    if (!found.mended.empty()) {
        copy = folder.Change(found.mended, "check");
    }
    RemoveLeftOvers(folder, found.leftOvers);
    List(found.findings, Remedy::Mend, "mended: ", console);
    if (copy.empty()) {
        return finishes || !found.leftOvers.empty() ? "What a crash had left is gone." : "";
    }
    std::string isKept = "What was there is kept in " + copy + ".";
    console.out << isKept << '\n';
    return isKept;
}

}  // namespace

CheckOutcome CheckData(const std::string& folder, bool mend, const Console& console) {
    if (!mend) {
        const WorkFolder work(folder, DecidedChange::Leave);
        const CheckedFolder checked = CheckFolder(work.Path());
        TellAll(checked, console);
        return {.nothingIsWrong = std::ranges::none_of(checked.findings, IsFault)};
    }
    std::string changed = MendAll(folder, console);
    const CheckedFolder left = CheckFolder(folder);
    List(left.findings, Remedy::User, "left: ", console);
    const auto count = std::ranges::count_if(left.findings, IsFault);
    console.out << (count == 0 ? std::string("Nothing is wrong any more.")
                               : CountText(count, "finding") + " left, for you to put right.")
                << '\n';
    return {.nothingIsWrong = count == 0, .changed = std::move(changed)};
}

}  // namespace ballhaven::data
