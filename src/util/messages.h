#pragma once

#include <functional>
#include <string>

namespace huebase {

// Every message box of the program goes through showMessage. The program
// installs a responder that shows a real box; tests install one that records
// the request and answers, so no test waits on a modal window.

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

struct MessageRequest {
    std::string text;
    std::string title; // empty: the program's name
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
};

using MessageResponder = std::function<MessageAnswer(const MessageRequest&)>;

// Shows the message through the installed responder and returns the answer.
// Without a responder the text goes to standard error and the answer is the
// first button (Ok or Yes).
MessageAnswer showMessage(const MessageRequest& request);
MessageAnswer showMessage(std::string text, std::string title = {},
                          MessageIcon icon = MessageIcon::None,
                          MessageButtons buttons = MessageButtons::Ok);

// Replaces the responder; returns the previous one so that a scope can put it back.
MessageResponder setMessageResponder(MessageResponder responder);

} // namespace huebase
