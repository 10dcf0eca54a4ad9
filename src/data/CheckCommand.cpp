#include "data/CheckCommand.h"

#include "data/checks/FolderCheck.h"
#include "data/folder/CountText.h"
#include "data/folder/WorkFolder.h"
#include "platform/files/FileSystem.h"

#include <algorithm>
#include <map>
#include <system_error>
#include <utility>
#include <vector>

namespace ballhaven::data {

namespace {

using Findings = std::vector<Finding>;
using Reasons = std::map<std::string, std::string>;

auto CountOf(const Findings& findings, Remedy remedy) {
    return std::ranges::count(findings, remedy, &Finding::remedy);
}

/// The beginning of a finding's line; of a fault, the given word.
const char* WordBefore(const Finding& finding, const char* wordOfAFault) {
    return IsFault(finding) ? wordOfAFault : "note: ";
}

void TellAll(const CheckedFolder& checked, const Console& console) {
    for (const Finding& finding : checked.findings) {
        const bool mends = finding.remedy == Remedy::Mend;
        console.out << WordBefore(finding, "") << LineOf(finding) << (mends ? " \"check --mend\" repairs it." : "")
                    << '\n';
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

/// Removes all that can be removed. Returns why the others stay, by their names.
Reasons RemoveLeftOvers(const WorkFolder& folder, const std::vector<std::string>& names) {
    Reasons kept;
    for (const std::string& name : names) {
        if (const int result = platform::fileSystem.remove(folder.Path() + name); result < 0) {
            kept[name] = std::generic_category().message(-result);
        }
    }
    return kept;
}

/// What mending has done.
struct Mending {
    std::string changed;  ///< the words about what was changed, empty where nothing was
    Reasons kept;         ///< why left-overs stay, by their names
};

/// Mends what can be mended, and tells what was.
Mending MendAll(const std::string& path, const Console& console) {
    const WorkFolder folder(path);
    if (folder.HasFinishedChange()) {
        console.out << "mended: A change that was decided has been brought to its end.\n";
    }
    CheckedFolder found = CheckFolder(folder.Path());
    std::string copy;
    if (!found.mended.empty()) {
        copy = folder.Change(found.mended, "check");
    }
    Mending mending;
    mending.kept = RemoveLeftOvers(folder, found.leftOvers);
    std::erase_if(found.findings, [&mending](const Finding& finding) { return mending.kept.contains(finding.file); });
    for (const Finding& finding : found.findings) {
        if (finding.remedy == Remedy::Mend) {
            console.out << "mended: " << LineOf(finding) << '\n';
        }
    }
    if (!copy.empty()) {
        mending.changed = "What was there is kept in " + copy + ".";
        console.out << mending.changed << '\n';
    } else if (folder.HasFinishedChange() || found.leftOvers.size() > mending.kept.size()) {
        mending.changed = "What a crash had left is gone.";
    }
    return mending;
}

/// What is to be told of a folder that has been mended.
Findings FindingsLeft(const std::string& folder, const Reasons& kept) {
    Findings left = CheckFolder(folder).findings;
    for (Finding& finding : left) {
        if (const auto reason = kept.find(finding.file); reason != kept.end()) {
            finding.what = "was left by a run that did not come to its end, and cannot be removed: " + reason->second;
            finding.meaning = "Remove it yourself.";
        }
    }
    return left;
}

}  // namespace

CheckOutcome CheckData(const std::string& folder, bool mend, const Console& console) {
    if (!mend) {
        const WorkFolder work(folder, DecidedChange::Leave);
        const CheckedFolder checked = CheckFolder(work.Path());
        TellAll(checked, console);
        return {.nothingIsWrong = std::ranges::none_of(checked.findings, IsFault)};
    }
    Mending mending = MendAll(folder, console);
    const Findings left = FindingsLeft(folder, mending.kept);
    for (const Finding& finding : left) {
        console.out << WordBefore(finding, "left: ") << LineOf(finding) << '\n';
    }
    const auto count = std::ranges::count_if(left, IsFault);
    console.out << (count == 0 ? std::string("Nothing is wrong any more.")
                               : CountText(count, "finding") + " left, for you to put right.")
                << '\n';
    return {.nothingIsWrong = count == 0, .changed = std::move(mending.changed)};
}

}  // namespace ballhaven::data
