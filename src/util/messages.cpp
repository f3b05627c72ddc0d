#include "util/messages.h"

#include <iostream>
#include <utility>

namespace huebase {

namespace {
MessageResponder& responderSlot() {
    static MessageResponder responder;
    return responder;
}

MessageAnswer firstButton(MessageButtons buttons) {
    return buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel
               ? MessageAnswer::Yes
               : MessageAnswer::Ok;
}
} // namespace

MessageAnswer showMessage(const MessageRequest& request) {
    if (const MessageResponder& responder = responderSlot())
        return responder(request);
    std::cerr << (request.title.empty() ? "Huebase" : request.title) << ": " << request.text
              << '\n';
    return firstButton(request.buttons);
}

MessageAnswer showMessage(std::string text, std::string title, MessageIcon icon,
                          MessageButtons buttons) {
    return showMessage(MessageRequest{std::move(text), std::move(title), icon, buttons});
}

MessageResponder setMessageResponder(MessageResponder responder) {
    return std::exchange(responderSlot(), std::move(responder));
}

} // namespace huebase
