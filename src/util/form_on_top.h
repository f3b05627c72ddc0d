#pragma once

class QWidget;

namespace huebase::MiscFiles {

// Keeps a window above other windows (true) or back to normal stacking
// (false), without moving or resizing it.
void FormOnTop(QWidget& form, bool onTop);

} // namespace huebase::MiscFiles
