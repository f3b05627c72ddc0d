#pragma once

#include <QApplication>
#include <QPointer>

#include <set>
#include <string>
#include <utility>

namespace huebase {

// The application object of every window of the program. It is the one
// place where a run-time error that no caller trapped ends up: each event is
// delivered inside a guard, so a failure abandons the action it broke and
// the session goes on (the editor keeps its ramp, OK still answers the host).
//
// The failure is shown as "Error: N. description", titled with the caption
// of the window it happened in. A failure while painting or on a timer would
// come back at the next paint or tick, so it is shown once per widget and
// message, and a widget that cannot paint shows a short note instead.
class GuardedApplication : public QApplication {
    Q_OBJECT
public:
    GuardedApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    // The text a widget that failed to paint shows in its place.
    static QString paintNote(const QString& message);

private:
    void recover(QObject* receiver, const QEvent& event, const std::string& message);
    // True the first time the receiver fails with this message.
    bool firstFailure(QObject* receiver, const std::string& message);

    std::set<std::pair<const QObject*, std::string>> reported_;
};

} // namespace huebase
