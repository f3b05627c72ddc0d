#pragma once

#include "color/color_choice.h"

namespace huebase::modColorDialog {

// The Windows colour chooser (ChooseColorA, starting on initial, fully open,
// any colour), centred by a one-shot window hook on the owner (an HWND) or
// on the screen. The custom colours live for the process.
ColorChoice chooseColorWin32(void* owner, bool centreOnOwner, ColorValue initial);

} // namespace huebase::modColorDialog
