#pragma once

#include <string>

namespace huebase {

class LutEditorWindow;

// Answers the editor's library buttons from the myLuts library in the
// program's folder: "Library..." opens the browser fitted to the editor's
// data range and puts the chosen table and no-data colour into the editor;
// "Save..." saves the editor's current table and no-data colour there; a
// ramp the editor leaves behind is kept in its "Recovered" folder.
void linkLibrary(LutEditorWindow& editor, const std::string& programFolder);

} // namespace huebase
