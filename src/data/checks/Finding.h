#pragma once

#include <string>

namespace ballhaven::data {

/// What becomes of a finding.
enum class Remedy {
    None,  ///< nothing is wrong: it is only worth knowing
    Mend,  ///< it can be repaired without a guess
    User,  ///< what stood there cannot be told any more, so that only the user can put it right
};

/// Something about a file of the folder that is not as the program leaves it. Texts are UTF-8.
struct Finding {
    std::string file;
    int record = 0;       ///< from 1; 0 for the file as a whole
    std::string subject;  ///< what the record is of, such as "draw of 2004-05-06"; may be empty
    std::string place;    ///< the columns in the record and what they hold; empty for the whole record
    std::string what;     ///< what is wrong, the sentence's predicate: "holds "x", which is no number"
    std::string meaning;  ///< what comes of it, and what to do: a sentence
    Remedy remedy = Remedy::User;

    bool operator==(const Finding&) const = default;
};

/// The finding in one line, without its remedy.
[[nodiscard]] std::string LineOf(const Finding& finding);

/// Whether something is wrong.
[[nodiscard]] inline bool IsFault(const Finding& finding) {
    return finding.remedy != Remedy::None;
}

}  // namespace ballhaven::data
