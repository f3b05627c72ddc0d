#include "color/color_chooser.h"

#include "color/qt_color.h"

#include <QColorDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#ifdef _WIN32
#include "color/color_chooser_win32.h"
#endif

namespace huebase::modColorDialog {

#ifdef _WIN32

ColorChoice ShowColorChooser(QWidget* owner, bool centreOnOwner, ColorValue initial) {
    void* hwnd = owner != nullptr ? reinterpret_cast<void*>(owner->window()->winId()) : nullptr;
    return chooseColorWin32(hwnd, centreOnOwner, initial);
}

#else

namespace {
ScreenRect toScreenRect(const QRect& r) {
    return {r.left(), r.top(), r.left() + r.width(), r.top() + r.height()};
}

// QColorDialog's custom colours are process-wide already; they are seeded
// on the first use only, so the user's changes survive later calls. Qt keeps
// no alpha in them: the colour bytes are the 254s that matter.
void seedCustomColorsOnce() {
    static const bool seeded = [] {
        for (int i = 0; i < kCustomColorCount; ++i)
            QColorDialog::setCustomColor(i, QColor::fromRgb(kInitialCustomColor));
        return true;
    }();
    (void)seeded;
}
// The chooser settles its size only when it is shown, so it is centred then,
// once.
class CentreOnFirstShow : public QObject {
public:
    explicit CentreOnFirstShow(const QRect& area) : area_(area) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            auto* window = static_cast<QWidget*>(watched);
            const QRect frame = window->frameGeometry();
            const ScreenPoint origin =
                centredOrigin(toScreenRect(area_), frame.width(), frame.height());
            window->move(origin.x, origin.y);
            watched->removeEventFilter(this);
        }
        return false;
    }

private:
    QRect area_;
};
} // namespace

ColorChoice ShowColorChooser(QWidget* owner, bool centreOnOwner, ColorValue initial) {
    seedCustomColorsOnce();
    QColorDialog chooser(toQColor(initial), owner);
    // Qt's own chooser everywhere, so custom colours and placement behave alike.
    chooser.setOption(QColorDialog::DontUseNativeDialog);
    QRect area;
    if (centreOnOwner && owner != nullptr)
        area = owner->window()->frameGeometry();
    else if (const QScreen* screen = QGuiApplication::primaryScreen())
        area = screen->geometry();
    CentreOnFirstShow centring(area);
    if (area.isValid())
        chooser.installEventFilter(&centring);

    if (chooser.exec() != QDialog::Accepted)
        return {0, true};
    return {fromQColor(chooser.selectedColor()), false};
}

#endif

} // namespace huebase::modColorDialog
