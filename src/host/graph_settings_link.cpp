#include "host/graph_settings_link.h"

#include "editor/graph_settings.h"
#include "editor/lut_editor_window.h"
#include "util/guarded.h"

namespace huebase {

void linkGraphSettings(LutEditorWindow& editor, const std::string& programFolder) {
    const std::string path = GraphSettings::fileIn(programFolder);
    editor.setGraphSettings(GraphSettings::read(path));
    QObject::connect(&editor, &LutEditorWindow::graphSettingsChanged, &editor,
                     guarded(&editor, [&editor, path] { editor.graphSettings().write(path); }));
}

} // namespace huebase
