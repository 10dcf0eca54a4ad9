#include "support/PrintedReport.h"

#include "platform/Services.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace ballhaven::support {

std::string WithoutBlanksAtLineEnds(const std::string& text) {
    std::istringstream lines(text);
    std::string all;
    for (std::string line; std::getline(lines, line);) {
        line.erase(line.find_last_not_of(' ') + 1);
        all += line + "\n";
    }
    return all;
}

std::string GoldenText(const std::string& name) {
    std::ifstream file(std::string(GOLDEN_FOLDER) + "/" + name);
    if (!file) {
        throw std::runtime_error("no such page file: " + name);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

PrintedReport::PrintedReport() {
    platform::services.openPrinter = [this](const std::string& title) {
        titles.push_back(title);
        return printer.OpenDevice();
    };
}

void PrintedReport::NameGame(const std::string& name, bool inOrder) {
    appState.gameRecord = BuildDefaultGameRecord(appState.currentGame, appState.gameType);
    SetField(appState.gameRecord, gameField::name, name);
    SetField(appState.gameRecord, gameField::order, inOrder ? "Y" : "N");
}

std::string PrintedReport::Paper() const {
    return WithoutBlanksAtLineEnds(printer.AsText());
}

std::vector<std::vector<std::string>> PrintedReport::PageLines() const {
    std::istringstream text(Paper());
    std::vector<std::vector<std::string>> pages(1);
    for (std::string line; std::getline(text, line);) {
        if (line == "-----") {
            pages.emplace_back();
        } else if (!line.empty()) {
            pages.back().push_back(line);
        }
    }
    return pages;
}

void PrintedReport::ExpectNotReady() {
    boxes.Expect("Ballhaven", "Printer Not Ready.\n\nPlease fix printer and try again.", platform::BoxButtons::Ok,
                 platform::BoxIcon::Information);
}

}  // namespace ballhaven::support
