#include "support/FreshStart.h"

#include "forms/CalendarForm.h"
#include "forms/HelpBoxForm.h"
#include "forms/MainForm.h"
#include "forms/NewGameForm.h"
#include "forms/PlaysForm.h"
#include "forms/PrintForm.h"
#include "forms/ShuffleForm.h"
#include "platform/Application.h"
#include "platform/CloseDown.h"
#include "platform/Services.h"
#include "platform/controls/Toolkit.h"
#include "platform/files/FileSystem.h"
#include "support/Games.h"

#include <gtest/gtest.h>

#include <memory>

namespace ballhaven::support {

namespace {

struct Form {
    platform::Window* window;
    void (*renew)();
};

template <auto& form>
void Renew() {
    std::destroy_at(&form);
    std::construct_at(&form);
}

template <auto& form>
constexpr Form registered = {&form.window, Renew<form>};

/// Every form of the program.
constexpr Form forms[] = {registered<frmMainForm>, registered<frmNewGame>, registered<ahcCalendar>,
                          registered<frmPlays>,    registered<frmPrint>,   registered<frmShuffle>,
                          registered<frmHelpBox>};

void ResetForms() {
    CloseForms();
    for (const Form& form : forms) {
        form.renew();
    }
}

platform::Services ServicesOfATest() {
    platform::Services services;
    services.showMessageBox = [](const platform::MessageBoxRequest& request) {
        ADD_FAILURE() << "A box without a script: " << request.title << ": " << request.text;
        return request.buttons == platform::BoxButtons::Ok ? platform::BoxAnswer::Ok : platform::BoxAnswer::No;
    };
    services.endProcess = [](int exitCode) {
        ADD_FAILURE() << "The process would have ended with exit code " << exitCode;
    };
    return services;
}

class FreshStart : public testing::EmptyTestEventListener {
  public:
    void OnTestStart(const testing::TestInfo&) override { Start(); }
    void OnTestEnd(const testing::TestInfo&) override { Start(); }

  private:
    void Start() const {
        platform::toolkit = toolkit;
        StartAfresh();
    }

    platform::Toolkit* const toolkit = platform::toolkit;
};

}  // namespace

void CloseForms() {
    for (const Form& form : forms) {
        form.window->unload = nullptr;
        form.window->Unload();
        if (form.window->view != nullptr) {
            platform::toolkit->TearDown(*form.window);  // left by an `unload` that failed, which ends the process
        }
    }
}

void StartAfresh() {
    ResetForms();
    ResetState();
    platform::services = ServicesOfATest();
    platform::closeDownNotices = {};
    platform::fileSystem = platform::SystemFiles();
    platform::SetApplicationTitle("Ballhaven");
}

void LayOutAfresh() {
    ResetForms();
    ResetState();
    LayOutMainForm();
}

void StartEveryTestAfresh() {
    testing::UnitTest::GetInstance()->listeners().Append(new FreshStart);  // the framework deletes it
}

}  // namespace ballhaven::support
