#include "util/form_on_top.h"

#include <QWidget>

namespace huebase::MiscFiles {

void FormOnTop(QWidget& form, bool onTop) {
    if (form.windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    // Changing a window flag hides a shown window; show it again where it was.
    const bool wasVisible = form.isVisible();
    const QRect geometry = form.geometry();
    form.setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    if (wasVisible) {
        form.setGeometry(geometry);
        form.show();
    }
}

} // namespace huebase::MiscFiles
