#pragma once

#include "platform/MessageBox.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>

namespace ballhaven::support {

/// Answers message boxes for as long as it lives: each box must be the next one of the queue, word for word. A box that
/// was not queued, another one than was queued, and one left over when the script ends fail the test at once; nothing
/// ever waits for an answer.
class MessageScript {
  public:
    MessageScript();
    ~MessageScript();
    MessageScript(const MessageScript&) = delete;
    MessageScript& operator=(const MessageScript&) = delete;

    /// Queues a box and the answer to it.
    MessageScript& Expect(std::string title, std::string text, platform::BoxButtons buttons, platform::BoxIcon icon,
                          platform::BoxAnswer answer = platform::BoxAnswer::Ok);

    /// Queues a question about something that cannot be undone, which bears the application's title.
    MessageScript& ExpectBeforeLoss(std::string text, platform::BoxIcon icon, platform::BoxAnswer answer);

    /// Boxes that were answered.
    [[nodiscard]] std::size_t Answered() const { return answered; }

    /// Boxes that are still to come.
    [[nodiscard]] std::size_t Left() const { return queue.size(); }

  private:
    struct Entry {
        platform::MessageBoxRequest request;
        platform::BoxAnswer answer;
    };

    [[nodiscard]] platform::BoxAnswer Answer(const platform::MessageBoxRequest& request);

    std::deque<Entry> queue;
    std::size_t answered = 0;
    std::function<platform::BoxAnswer(const platform::MessageBoxRequest&)> before;
};

}  // namespace ballhaven::support
