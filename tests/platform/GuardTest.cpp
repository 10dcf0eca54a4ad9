#include "platform/Guard.h"

#include "platform/Services.h"
#include "support/MessageScript.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ballhaven::platform {
namespace {

const std::string tryAgain =
    "\n\nThe file is as it was when it was last saved. Make it possible to write it, and try again.\nOtherwise the "
    "program ends, and what has been changed since is lost.\n\nTry again?";

/// Plain services for as long as it lives.
class PlainServices {
  public:
    PlainServices() : before(std::exchange(services, Services())) {}
    ~PlainServices() { services = before; }
    PlainServices(const PlainServices&) = delete;
    PlainServices& operator=(const PlainServices&) = delete;

  private:
    const Services before;
};

class GuardTest : public testing::Test {
  protected:
    GuardTest() {
        services.endProcess = [this](int exitCode) { exitCodes.push_back(exitCode); };
        services.savesBeforeTheEnd = {[this] { Save("draws"); }, [this] { Save("plays"); }};
    }

    /// A save of a file, which fails as long as the file is among the ones that cannot be written.
    void Save(const std::string& file) {
        if (failures[file] > 0) {
            --failures[file];
            throw std::runtime_error("File error: " + file + "\nNo space left on device");
        }
        saved.push_back(file);
    }

    void ExpectQuestion(const std::string& file, BoxAnswer answer) {
        boxes.Expect("Ballhaven", "File error: " + file + "\nNo space left on device" + tryAgain, BoxButtons::YesNo,
                     BoxIcon::Critical, answer);
    }

    static void Overflow() { throw std::runtime_error("Overflow"); }

    const PlainServices plain;
    support::MessageScript boxes;
    std::vector<int> exitCodes;
    std::vector<std::string> saved;
    std::map<std::string, int> failures;  ///< how often a file fails yet
};

using Texts = std::vector<std::string>;

TEST_F(GuardTest, WhatDoesNotFailRunsOnceAndEndsNothing) {
    int runs = 0;
    RunGuarded([&runs] { ++runs; });
    RunGuardedReading([&runs] { ++runs; });

    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(exitCodes.empty());
}

TEST_F(GuardTest, AFailureIsToldAndEndsTheProcessWithoutSaving) {
    boxes.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    RunGuarded(Overflow);

    EXPECT_EQ(exitCodes, std::vector<int>{1});
    EXPECT_TRUE(saved.empty());
}

TEST_F(GuardTest, AFailureInDrawingSavesWhatIsDirtyBeforeItIsTold) {
    boxes.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    services.explainFailure = [this](const std::exception& failure, bool inReading) {
        EXPECT_TRUE(inReading);
        EXPECT_EQ(saved, (Texts{"draws", "plays"}));
        return std::string(failure.what());
    };
    RunGuardedReading(Overflow);

    EXPECT_EQ(exitCodes, std::vector<int>{1});
}

TEST_F(GuardTest, AFailureInCountingSavesWhatIsDirty) {
    boxes.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    RunGuarded([] {
        const OnlyReads counting;
        Overflow();
    });

    EXPECT_EQ(saved, (Texts{"draws", "plays"}));
}

TEST_F(GuardTest, AFailureBesideACountThatWentWellSavesNothing) {
    boxes.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    RunGuarded([] {
        { const OnlyReads counting; }
        Overflow();
    });

    EXPECT_TRUE(saved.empty());
}

TEST_F(GuardTest, ACountWhoseFailureWasCaughtDoesNotLetALaterOneSave) {
    RunGuarded([] {
        try {
            const OnlyReads counting;
            Overflow();
        } catch (const std::exception&) {
        }
    });
    boxes.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    RunGuarded(Overflow);

    EXPECT_TRUE(saved.empty());
}

TEST_F(GuardTest, TheWordsAreThoseOfTheProgram) {
    services.explainFailure = [](const std::exception& failure, bool inReading) {
        return std::string(failure.what()) + (inReading ? " while drawing" : " while acting");
    };
    boxes.Expect("Ballhaven", "Overflow while acting", BoxButtons::Ok, BoxIcon::Critical);
    RunGuarded(Overflow);
    boxes.Expect("Ballhaven", "Overflow while drawing", BoxButtons::Ok, BoxIcon::Critical);
    RunGuardedReading(Overflow);
}

TEST_F(GuardTest, BehindTheBoxDrawingGoesOnAndActsDoNot) {
    int acts = 0;
    int readings = 0;
    services.showMessageBox = [&](const MessageBoxRequest&) {
        RunGuarded([&acts] { ++acts; });
        RunGuardedReading([&readings] { ++readings; });
        RunGuardedReading(Overflow);
        return BoxAnswer::Ok;
    };
    RunGuarded(Overflow);

    EXPECT_EQ(acts, 0);
    EXPECT_EQ(readings, 1);
    EXPECT_EQ(exitCodes, std::vector<int>{1}) << "the failure behind the box is passed over";
    RunGuarded([&acts] { ++acts; });
    EXPECT_EQ(acts, 1) << "where a test has not ended the process";
}

TEST_F(GuardTest, ASaveIsTriedAgainForAsLongAsTheUserAsksForIt) {
    failures["draws"] = 2;
    ExpectQuestion("draws", BoxAnswer::Yes);
    ExpectQuestion("draws", BoxAnswer::Yes);
    bool wentOn = false;
    RunGuarded([&] {
        SaveOrAskAgain([this] { Save("draws"); });
        wentOn = true;
    });

    EXPECT_EQ(saved, Texts{"draws"});
    EXPECT_TRUE(wentOn);
    EXPECT_TRUE(exitCodes.empty());
}

TEST_F(GuardTest, ASaveThatTheUserGivesUpEndsTheProcessWithoutAnotherBoxAndTheOtherFileIsSaved) {
    failures["draws"] = 100;
    ExpectQuestion("draws", BoxAnswer::No);
    RunGuarded([this] { SaveOrAskAgain([this] { Save("draws"); }); });

    EXPECT_EQ(saved, Texts{"plays"});
    EXPECT_EQ(exitCodes, std::vector<int>{1});
}

TEST_F(GuardTest, TheOtherFileCanBeTriedAgainToo) {
    failures["draws"] = 100;
    failures["plays"] = 1;
    ExpectQuestion("draws", BoxAnswer::No);
    ExpectQuestion("plays", BoxAnswer::Yes);
    RunGuarded([this] { SaveOrAskAgain([this] { Save("draws"); }); });

    EXPECT_EQ(saved, Texts{"plays"});
}

TEST_F(GuardTest, ASaveBeforeTheEndAsksOnceForEachFailureWhereItsOwnRoutineAsksToo) {
    failures["draws"] = 1;
    services.savesBeforeTheEnd = {[this] { SaveOrAskAgain([this] { Save("draws"); }); }};
    ExpectQuestion("draws", BoxAnswer::Yes);
    boxes.Expect("Ballhaven", "Overflow", BoxButtons::Ok, BoxIcon::Critical);
    RunGuardedReading(Overflow);

    EXPECT_EQ(saved, Texts{"draws"});
}

TEST_F(GuardTest, WhileTheQuestionIsOpenNoActIsRun) {
    failures["draws"] = 1;
    int acts = 0;
    services.showMessageBox = [&](const MessageBoxRequest&) {
        RunGuarded([&acts] { ++acts; });
        return BoxAnswer::Yes;
    };
    RunGuarded([this] { SaveOrAskAgain([this] { Save("draws"); }); });

    EXPECT_EQ(acts, 0);
    RunGuarded([&acts] { ++acts; });
    EXPECT_EQ(acts, 1);
}

}  // namespace
}  // namespace ballhaven::platform
