#include "support/service_recorder.h"

namespace huebase::testing {

ServiceRecorder::ServiceRecorder() {
    previousResponder_ = setMessageResponder([this](const MessageRequest& request) {
        messages_.push_back(request);
        if (!answers_.empty()) {
            const MessageAnswer answer = answers_.front();
            answers_.pop_front();
            return answer;
        }
        return request.buttons == MessageButtons::YesNo ||
                       request.buttons == MessageButtons::YesNoCancel
                   ? MessageAnswer::Yes
                   : MessageAnswer::Ok;
    });
    previousExit_ = setProgramExitHandler([this](int code) { exitCodes_.push_back(code); });
}

ServiceRecorder::~ServiceRecorder() {
    setMessageResponder(std::move(previousResponder_));
    setProgramExitHandler(std::move(previousExit_));
}

} // namespace huebase::testing
