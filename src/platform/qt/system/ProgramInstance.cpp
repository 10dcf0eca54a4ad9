#include "platform/qt/system/ProgramInstance.h"

#include "platform/Application.h"
#include "platform/Guard.h"
#include "platform/files/FolderLock.h"

#include <chrono>
#include <cstdlib>

namespace ballhaven::platform {

namespace {

using namespace std::chrono_literals;

constexpr int answerPatience = 2500;  // milliseconds

// A visitor speaks as soon as it has connected. One that comes too late for this tries again.
constexpr auto visitorPatience = 100ms;

/// What a desktop hands to a program that it starts, so that the program may bring a window to the front.
std::string ActivationToken() {
    for (const char* variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return {};
}

}  // namespace

ProgramInstance::ProgramInstance() = default;
ProgramInstance::~ProgramInstance() = default;

bool ProgramInstance::BecomeFirst(const std::string& directory) {
    if (lock == nullptr) {
        lock = std::make_unique<FolderLock>(directory);
    }
    const bool isFirst = lock->Take();
    if (isFirst && listener == nullptr) {
        Listen();
    }
    return isFirst;
}

std::string ProgramInstance::SocketPath() const {
    return PrivateSocketPath("ballhaven-" + lock->Key());
}

void ProgramInstance::Listen() {
    listener = std::make_unique<InstanceListener>(SocketPath());
    if (listener->Number() < 0) {
        return;  // nobody will be answered, and is told so
    }
    arrivals = std::make_unique<QSocketNotifier>(listener->Number(), QSocketNotifier::Read);
    QObject::connect(arrivals.get(), &QSocketNotifier::activated, [this] { Receive(); });
    visitorsTime.setSingleShot(true);
    visitorsTime.setInterval(visitorPatience);
    QObject::connect(&visitorsTime, &QTimer::timeout, [this] { Dismiss(); });
}

void ProgramInstance::Leave() {
    Dismiss();
    arrivals.reset();
    listener.reset();
}

void ProgramInstance::Receive() {
    visitor = listener->LetIn();
    if (!visitor) {
        return;
    }
    arrivals->setEnabled(false);
    visitorsWords.reset(new QSocketNotifier(visitor->Number(), QSocketNotifier::Read));
    QObject::connect(visitorsWords.get(), &QSocketNotifier::activated, [this] { HearVisitor(); });
    visitorsTime.start();
}

void ProgramInstance::HearVisitor() {
    switch (visitor->Listen()) {
        case InstanceVisitor::State::Speaking:
            return;
        case InstanceVisitor::State::HasAsked:
            Serve(visitor->Request());
            visitor->Answer();
            break;
        case InstanceVisitor::State::Gone:
            break;
    }
    Dismiss();
}

void ProgramInstance::Serve(const InstanceRequest& request) const {
    if (request.title == ApplicationTitle() && comeToFront) {
        RunGuarded([&] { comeToFront(request.token); });
    }
}

void ProgramInstance::Dismiss() {
    if (!visitor) {
        return;
    }
    visitorsTime.stop();
    visitorsWords->setEnabled(false);
    visitorsWords.reset();
    visitor.reset();
    arrivals->setEnabled(true);
}

bool ProgramInstance::ActivateFirst(const std::string& title) const {
    return AskFirstInstance(SocketPath(), {title, ActivationToken()}, answerPatience);
}

}  // namespace ballhaven::platform
