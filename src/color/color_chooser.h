#pragma once

#include "color/color_choice.h"

class QWidget;

namespace huebase::modColorDialog {

// Shows the system colour chooser modally, starting on initial, centred on
// the owner's window (or on the screen when centreOnOwner is false or there
// is no owner). Returns the colour taken, or colour 0 with Cancelled set.
// The sixteen custom colours start as 0xFEFEFEFE on the first call and keep
// the user's changes for the rest of the process.
ColorChoice ShowColorChooser(QWidget* owner, bool centreOnOwner, ColorValue initial);

} // namespace huebase::modColorDialog
