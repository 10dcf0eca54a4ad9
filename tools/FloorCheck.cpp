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

/// The entries of the programs, which a test cannot link.
const std::set<std::string> roomsOfMain = {"start/main", "data/main"};

struct Include {
    std::string target;
    bool quoted = false;
};

/// The house as it is read: file names are relative to src/, with slashes.
struct House {
    std::map<std::string, int> floors;   ///< by room
    std::map<std::string, int> folders;  ///< their places in the order
    std::map<std::string, std::vector<Include>> files;
    std::map<std::string, std::set<std::string>> rooms;  ///< with the other rooms that each includes
    std::vector<std::string> faults;
};

std::string RoomOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

std::string FolderOf(const std::string& room) {
    const std::size_t slash = room.rfind('/');
    return slash == std::string::npos ? "" : room.substr(0, slash);
}

bool IsSource(const std::string& file) {
    return file.ends_with(".cpp");
}

bool IsBehindTheWall(const std::string& file) {
    return file.starts_with("platform/qt/");
}

void ReadList(const fs::path& list, House& house) {
    static const std::regex floorRow("([0-5]) (\\S+)\\s*");
    static const std::regex folderRow("folder (\\S+)\\s*");
    std::ifstream input(list);
    if (!input) {
        house.faults.push_back("docs/floors.txt cannot be read");
    }
    std::smatch match;
    for (std::string line; std::getline(input, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        if (std::regex_match(line, match, folderRow)) {
            if (!house.folders.emplace(match[1], static_cast<int>(house.folders.size())).second) {
                house.faults.push_back("docs/floors.txt orders the folder " + match[1].str() + " twice");
            }
        } else if (!std::regex_match(line, match, floorRow)) {
            house.faults.push_back("docs/floors.txt: \"" + line + "\" is neither a folder nor a floor and room");
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

/// Puts header and source of each room together.
void JoinRooms(House& house) {
    for (const auto& [file, includes] : house.files) {
        std::set<std::string>& others = house.rooms[RoomOf(file)];
        for (const Include& include : includes) {
            if (house.files.contains(include.target) && RoomOf(include.target) != RoomOf(file)) {
                others.insert(RoomOf(include.target));
            }
        }
    }
}

void CheckList(House& house) {
    std::set<std::string> furnished;
    for (const auto& [file, includes] : house.files) {
        if (!house.floors.contains(RoomOf(file))) {
            house.faults.push_back("src/" + file + " is in no room of docs/floors.txt");
        }
    }
    for (const auto& [room, others] : house.rooms) {
        furnished.insert(FolderOf(room));
    }
    for (const auto& [room, floor] : house.floors) {
        if (!house.rooms.contains(room)) {
            house.faults.push_back("docs/floors.txt names " + room + ", which has no file in src");
        }
    }
    for (const std::string& folder : furnished) {
        if (!house.folders.contains(folder)) {
            house.faults.push_back("src/" + folder + " has no place in the order of folders in docs/floors.txt");
        }
    }
    for (const auto& [folder, place] : house.folders) {
        if (!furnished.contains(folder)) {
            house.faults.push_back("docs/floors.txt orders the folder " + folder + ", which has no room in src");
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
    } else if (RoomOf(target) == RoomOf(file) && (IsSource(target) || !IsSource(file))) {
        house.faults.push_back("src/" + file + " includes " + target + " of its own room");
    }
    if (IsBehindTheWall(target) && !IsBehindTheWall(file) && floor < startFloor) {
        house.faults.push_back("src/" + file + " includes " + target + ": only the start sees behind the platform");
    }
}

void CheckFiles(House& house) {
    for (const auto& [file, includes] : house.files) {
        const auto floor = house.floors.find(RoomOf(file));
        for (const Include& include : includes) {
            CheckInclude(file, floor == house.floors.end() ? startFloor : floor->second, include, house);
        }
    }
}

/// Both orders. A room or folder without a place in them is a fault of its own, and runs neither up nor down.
void CheckOrders(const std::string& room, const std::string& other, House& house) {
    const auto floor = house.floors.find(room);
    const auto otherFloor = house.floors.find(other);
    const auto end = house.floors.end();
    if (floor != end && otherFloor != end && otherFloor->second > floor->second) {
        house.faults.push_back(room + " (floor " + std::to_string(floor->second) + ") includes " + other + " (floor " +
                               std::to_string(otherFloor->second) + "), which is above it");
    }
    const auto folder = house.folders.find(FolderOf(room));
    const auto otherFolder = house.folders.find(FolderOf(other));
    if (folder != house.folders.end() && otherFolder != house.folders.end() && otherFolder->second > folder->second) {
        house.faults.push_back(room + " includes " + other + ", but the folder " + otherFolder->first +
                               " stands behind " + folder->first);
    }
}

/// The rooms to which the includes of a room lead; itself only if they lead back.
std::set<std::string> RoomsBelow(const std::string& room, const House& house) {
    std::set<std::string> below;
    std::vector<std::string> waiting{room};
    while (!waiting.empty()) {
        const std::string next = waiting.back();
        waiting.pop_back();
        for (const std::string& other : house.rooms.at(next)) {
            if (below.insert(other).second) {
                waiting.push_back(other);
            }
        }
    }
    return below;
}

void CheckCircles(House& house) {
    std::map<std::string, std::set<std::string>> below;
    for (const auto& [room, others] : house.rooms) {
        below[room] = RoomsBelow(room, house);
    }
    std::set<std::string> named;
    for (const auto& [room, rooms] : below) {
        if (!rooms.contains(room) || named.contains(room)) {
            continue;
        }
        std::string circle;
        for (const std::string& other : rooms) {
            if (below[other].contains(room)) {
                circle += (circle.empty() ? "" : ", ") + other;
                named.insert(other);
            }
        }
        house.faults.push_back("a circle of rooms: " + circle);
    }
}

House ReadHouse(const fs::path& root) {
    House house;
    ReadList(root / "docs" / "floors.txt", house);
    ReadFiles(root / "src", house);
    JoinRooms(house);
    return house;
}

}  // namespace

std::vector<std::string> FloorFaults(const fs::path& root) {
    House house = ReadHouse(root);
    CheckList(house);
    CheckFiles(house);
    for (const auto& [room, others] : house.rooms) {
        for (const std::string& other : others) {
            CheckOrders(room, other, house);
        }
    }
    CheckCircles(house);
    std::sort(house.faults.begin(), house.faults.end());
    return house.faults;
}

std::vector<std::string> UntestedRooms(const fs::path& root) {
    std::vector<std::string> faults;
    for (const auto& [file, includes] : ReadHouse(root).files) {
        const std::string test = "tests/" + RoomOf(file) + "Test.cpp";
        if (IsSource(file) && !roomsOfMain.contains(RoomOf(file)) && !fs::exists(root / test)) {
            faults.push_back("src/" + file + " has no " + test);
        }
    }
    return faults;
}

}  // namespace ballhaven::tools
