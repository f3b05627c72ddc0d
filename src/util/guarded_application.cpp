#include "util/guarded_application.h"

#include "util/messages.h"
#include "util/vb_error.h"

#include <QPainter>
#include <QTimer>
#include <QWidget>

#include <exception>

namespace huebase {

namespace {

QWidget* widgetOf(QObject* object) {
    for (; object; object = object->parent())
        if (auto* widget = qobject_cast<QWidget*>(object))
            return widget;
    return QApplication::activeWindow();
}

std::string captionOf(QObject* receiver) {
    const QWidget* widget = widgetOf(receiver);
    return widget ? widget->window()->windowTitle().toStdString() : std::string();
}

// Painting is still under way for the widget, so the note can take its place.
void drawNote(QWidget& widget, const QString& text) {
    QPainter painter(&widget);
    painter.fillRect(widget.rect(), widget.palette().window());
    painter.setPen(widget.palette().color(QPalette::WindowText));
    const QRect area = widget.rect().adjusted(4, 0, -4, 0);
    painter.drawText(area, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

void report(const std::string& message, const std::string& title) {
    showMessage(message, title, MessageIcon::Critical, MessageButtons::Ok);
}

} // namespace

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}

QString GuardedApplication::paintNote(const QString& message) {
    return "Not shown: " + message;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        recover(receiver, *event, VbError::from(std::current_exception()).message());
        return true;
    }
}

void GuardedApplication::recover(QObject* receiver, const QEvent& event,
                                 const std::string& message) {
    const std::string title = captionOf(receiver);
    switch (event.type()) {
    case QEvent::Paint:
        if (auto* widget = qobject_cast<QWidget*>(receiver))
            drawNote(*widget, paintNote(QString::fromStdString(message)));
        // A message box now would paint over the widget and fail again.
        if (firstFailure(receiver, message))
            QTimer::singleShot(0, this, [message, title] { report(message, title); });
        break;
    case QEvent::Timer:
        if (firstFailure(receiver, message))
            report(message, title);
        break;
    default:
        report(message, title);
        break;
    }
}

bool GuardedApplication::firstFailure(QObject* receiver, const std::string& message) {
    if (!reported_.insert({receiver, message}).second)
        return false;
    // A later object at the same address is a new cause.
    connect(receiver, &QObject::destroyed, this, [this, receiver, message] {
        reported_.erase({receiver, message});
    });
    return true;
}

} // namespace huebase
