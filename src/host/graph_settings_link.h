#pragma once

#include <string>

namespace huebase {

class LutEditorWindow;

// Keeps the editor's graph settings (count scale, ramp fill) in the settings
// file of the program's folder: they are read into the editor now and
// written back whenever the user changes them. A file that cannot be written
// is left as it was without a word; the choice still holds for this run.
void linkGraphSettings(LutEditorWindow& editor, const std::string& programFolder);

} // namespace huebase
