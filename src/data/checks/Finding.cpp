#include "data/checks/Finding.h"

namespace ballhaven::data {

std::string LineOf(const Finding& finding) {
    std::string line = finding.file;
    if (finding.record > 0) {
        line += ", record " + std::to_string(finding.record);
    }
    if (!finding.subject.empty()) {
        line += " (" + finding.subject + ")";
    }
    if (!finding.place.empty()) {
        line += ", " + finding.place;
    }
    line += ": " + finding.what + ".";
    return finding.meaning.empty() ? line : line + " " + finding.meaning;
}

}  // namespace ballhaven::data
