#pragma once

#include "util/messages.h"

namespace huebase {

// The program's message boxes: a modal QMessageBox per request.
MessageAnswer showQtMessageBox(const MessageRequest& request);

} // namespace huebase
