#include "tools/FloorCheck.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace ballhaven::tools {
namespace {

namespace fs = std::filesystem;

constexpr int startFloor = 5;

struct Include {
    std::string target;
    bool quoted = false;
};

/// The house as it is read: file names are relative to src/, with slashes.
struct House {
    std::map<std::string, int> floors;  ///< by room
    std::map<std::string, std::vector<Include>> files;
    std::vector<std::string> faults;
};

std::string RoomOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

bool IsBehindTheWall(const std::string& file) {
    return file.starts_with("platform/qt/");
}

std::string Named(const std::string& file, int floor) {
    return "src/" + file + " (floor " + std::to_string(floor) + ")";
}

void ReadFloors(const fs::path& list, House& house) {
    static const std::regex row("([0-5]) (\\S+)\\s*");
    std::ifstream input(list);
    if (!input) {
        house.faults.push_back("docs/floors.txt cannot be read");
    }
    std::smatch match;
    for (std::string line; std::getline(input, line);) {
        if (line.empty() || line.front() == '#' || line.starts_with("folder ")) {
            continue;
        }
        if (!std::regex_match(line, match, row)) {
            house.faults.push_back("docs/floors.txt: \"" + line + "\" is no floor and room");
        } else if (!house.floors.emplace(match[2], std::stoi(match[1])).second) {
            house.faults.push_back("docs/floors.txt names " + match[2].str() + " twice");
        }
    }
}

std::vector<Include> IncludesOf(const fs::path& path) {
    static const std::regex form("\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"].*");
    std::vector<Include> includes;
    std::ifstream input(path);
    std::smatch match;
    for (std::string line; std::getline(input, line);) {
        if (std::regex_match(line, match, form)) {
            includes.push_back({match[2], match[1] == "\""});
        }
    }
    return includes;
}

void ReadFiles(const fs::path& source, House& house) {
    if (!fs::is_directory(source)) {
        house.faults.push_back("src is no directory");
        return;
    }
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(source)) {
        const std::string extension = entry.path().extension().string();
        if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp")) {
            house.files[entry.path().lexically_relative(source).generic_string()] = IncludesOf(entry.path());
        }
    }
}

void CheckRooms(House& house) {
    std::set<std::string> furnished;
    for (const auto& [file, includes] : house.files) {
        furnished.insert(RoomOf(file));
        if (!house.floors.contains(RoomOf(file))) {
            house.faults.push_back("src/" + file + " is in no room of docs/floors.txt");
        }
    }
    for (const auto& [room, floor] : house.floors) {
        if (!furnished.contains(room)) {
            house.faults.push_back("docs/floors.txt names " + room + ", which has no file in src");
        }
    }
}

bool IsOfTheToolkit(const std::string& target) {
    return target.starts_with('Q') || target.starts_with('q');
}

void CheckInclude(const std::string& file, int floor, const Include& include, House& house) {
    const std::string& target = include.target;
    if (IsOfTheToolkit(target)) {
        if (!IsBehindTheWall(file)) {
            house.faults.push_back("src/" + file + " includes " + target + ": Qt stays in src/platform/qt");
        }
        return;
    }
    if (!include.quoted || target.ends_with(".moc")) {
        return;
    }
    if (!house.files.contains(target)) {
        house.faults.push_back("src/" + file + " includes " + target + ", which is no file of src");
        return;
    }
    const auto targetFloor = house.floors.find(RoomOf(target));
    if (targetFloor != house.floors.end() && targetFloor->second > floor) {
        house.faults.push_back(Named(file, floor) + " includes " + Named(target, targetFloor->second) +
                               ", which is above it");
    }
    if (IsBehindTheWall(target) && !IsBehindTheWall(file) && floor < startFloor) {
        house.faults.push_back("src/" + file + " includes " + target + ": only the start sees behind the platform");
    }
}

void CheckIncludes(House& house) {
    for (const auto& [file, includes] : house.files) {
        const auto floor = house.floors.find(RoomOf(file));
        for (const Include& include : includes) {
            CheckInclude(file, floor == house.floors.end() ? startFloor : floor->second, include, house);
        }
    }
}

/// Follows the includes of the last file of `chain`. `done` holds the files from which no new loop can be found.
void FollowIncludes(std::vector<std::string>& chain, std::set<std::string>& done, House& house) {
    const std::string file = chain.back();
    for (const Include& include : house.files.at(file)) {
        const auto first = std::find(chain.begin(), chain.end(), include.target);
        if (first != chain.end()) {
            std::string loop;
            for (auto link = first; link != chain.end(); ++link) {
                loop += "src/" + *link + " > ";
            }
            house.faults.push_back("a loop of includes: " + loop + "src/" + include.target);
        } else if (house.files.contains(include.target) && !done.contains(include.target)) {
            chain.push_back(include.target);
            FollowIncludes(chain, done, house);
            chain.pop_back();
        }
    }
    done.insert(file);
}

void CheckLoops(House& house) {
    std::set<std::string> done;
    for (const auto& [file, includes] : house.files) {
        if (!done.contains(file)) {
            std::vector<std::string> chain{file};
            FollowIncludes(chain, done, house);
        }
    }
}

}  // namespace

std::vector<std::string> FloorFaults(const fs::path& root) {
    House house;
    ReadFloors(root / "docs" / "floors.txt", house);
    ReadFiles(root / "src", house);
    CheckRooms(house);
    CheckIncludes(house);
    CheckLoops(house);
    std::sort(house.faults.begin(), house.faults.end());
    return house.faults;
}

}  // namespace ballhaven::tools
