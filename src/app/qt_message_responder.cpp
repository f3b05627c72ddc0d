#include "app/qt_message_responder.h"

#include <QApplication>
#include <QMessageBox>

namespace huebase {

namespace {
QMessageBox::Icon toQt(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons toQt(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

MessageAnswer fromQt(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}
} // namespace

MessageAnswer showQtMessageBox(const MessageRequest& request) {
    const QString title = request.title.empty() ? QApplication::applicationDisplayName()
                                                : QString::fromStdString(request.title);
    QMessageBox box(toQt(request.icon), title, QString::fromStdString(request.text),
                    toQt(request.buttons), QApplication::activeWindow());
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    return fromQt(box.exec());
}

} // namespace huebase
