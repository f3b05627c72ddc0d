#include "util/guarded_application.h"

#include "util/messages.h"
#include "util/vb_error.h"

#include <QPainter>
#include <QTimer>
#include <QWidget>

#include <exception>

namespace huebase {

namespace {

QWidget* widgetOf(const QObject* object) {
    for (; object; object = object->parent())
        if (auto* widget = qobject_cast<QWidget*>(const_cast<QObject*>(object)))
            return widget;
    return QApplication::activeWindow();
}

std::string captionOf(const QObject* context) {
    const QWidget* widget = widgetOf(context);
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

void show(const std::string& message, const std::string& title) {
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
        const std::string message = VbError::from(std::current_exception()).message();
        if (event->type() != QEvent::Paint) {
            report(receiver, message,
                   event->type() == QEvent::Timer ? Reporting::OncePerCause : Reporting::EveryTime);
            return true;
        }
        if (auto* widget = qobject_cast<QWidget*>(receiver))
            drawNote(*widget, paintNote(QString::fromStdString(message)));
        // A message box now would paint over the widget and fail again.
        if (firstFailure(receiver, message)) {
            const std::string title = captionOf(receiver);
            QTimer::singleShot(0, this, [message, title] { show(message, title); });
        }
        return true;
    }
}

void GuardedApplication::reportFailure(const QObject* context, std::exception_ptr failure,
                                       Reporting reporting) {
    const std::string message = VbError::from(failure).message();
    if (auto* application = qobject_cast<GuardedApplication*>(QCoreApplication::instance()))
        application->report(context, message, reporting);
    else
        show(message, captionOf(context));
}

void GuardedApplication::report(const QObject* context, const std::string& message,
                                Reporting reporting) {
    if (reporting == Reporting::EveryTime || firstFailure(context, message))
        show(message, captionOf(context));
}

bool GuardedApplication::firstFailure(const QObject* context, const std::string& message) {
    if (!reported_.insert({context, message}).second)
        return false;
    // A later object at the same address is a new cause.
    if (context)
        connect(context, &QObject::destroyed, this, [this, context, message] {
            reported_.erase({context, message});
        });
    return true;
}

} // namespace huebase
