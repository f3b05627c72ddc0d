#pragma once

#include "util/messages.h"
#include "util/program_exit.h"

#include <deque>
#include <vector>

namespace huebase::testing {

// Installs a message responder and a program-exit handler for the lifetime of
// the object, records every request, and answers with queued answers (the
// first button when none is queued). Restores the previous services on exit.
class ServiceRecorder {
public:
    ServiceRecorder();
    ~ServiceRecorder();
    ServiceRecorder(const ServiceRecorder&) = delete;
    ServiceRecorder& operator=(const ServiceRecorder&) = delete;

    void queueAnswer(MessageAnswer answer) { answers_.push_back(answer); }

    const std::vector<MessageRequest>& messages() const { return messages_; }
    const std::vector<int>& exitCodes() const { return exitCodes_; }
    bool ended() const { return !exitCodes_.empty(); }

private:
    std::vector<MessageRequest> messages_;
    std::vector<int> exitCodes_;
    std::deque<MessageAnswer> answers_;
    MessageResponder previousResponder_;
    ProgramExitHandler previousExit_;
};

} // namespace huebase::testing
