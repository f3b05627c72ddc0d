#include "host/library_link.h"

#include "browser/lut_library.h"
#include "browser/recovered_ramps.h"
#include "editor/lut_editor_window.h"
#include "util/guarded.h"

namespace huebase {

void linkLibrary(LutEditorWindow& editor, const std::string& programFolder) {
    QObject::connect(&editor, &LutEditorWindow::openBrowserRequested, &editor,
                     guarded(&editor, [&editor, programFolder] {
                         LutLibrary::browse(&editor, programFolder, editor.DataMin(),
                                            editor.DataMax(),
                                            [&editor](const LutTable& table, ColorValue noData) {
                                                editor.model().recorded("Library ramp", [&] {
                                                    editor.SetLutTable(table);
                                                    editor.setNoDataColor(noData);
                                                });
                                            });
                     }));
    QObject::connect(&editor, &LutEditorWindow::saveRequested, &editor,
                     guarded(&editor, [&editor, programFolder] {
                         LutLibrary::saveAs(&editor, programFolder, editor.model().lutTable(),
                                            editor.noDataColor());
                     }));
    QObject::connect(
        &editor, &LutEditorWindow::rampToKeep, &editor,
        guarded(&editor, [programFolder](const LutTable& table, ColorValue noData) {
            RecoveredRamps(LutLibrary::folderOf(programFolder) + "/Recovered").keep(table, noData);
        }));
}

} // namespace huebase
