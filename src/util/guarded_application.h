#pragma once

#include <QApplication>

#include <exception>
#include <set>
#include <string>
#include <utility>

namespace huebase {

// How often a failure of the same object with the same message is shown:
// every time for actions the user starts, once for what repeats by itself
// (painting, timers), so a message box never triggers it again.
enum class Reporting { EveryTime, OncePerCause };

// The application object of every window of the program, and the one place
// where a run-time error that no routine trapped ends up: a failure abandons
// the action it broke and the session goes on (the editor keeps its ramp, OK
// still answers the host).
//
// Slots, input handlers and event filters catch their failures at their
// entry (util/guarded.h) and hand them to reportFailure; every other event
// (painting, timers, anything unforeseen) is delivered inside a guard here.
// The failure is shown as "Error: N. description", titled with the caption
// of the window it happened in. A widget that cannot paint shows a short
// note in its place.
class GuardedApplication : public QApplication {
    Q_OBJECT
public:
    GuardedApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    // Shows the failure of code run for `context` (see Reporting).
    static void reportFailure(const QObject* context, std::exception_ptr failure,
                              Reporting reporting = Reporting::EveryTime);

    // The text a widget that failed to paint shows in its place.
    static QString paintNote(const QString& message);

private:
    void report(const QObject* context, const std::string& message, Reporting reporting);
    // True the first time the object fails with this message.
    bool firstFailure(const QObject* context, const std::string& message);

    std::set<std::pair<const QObject*, std::string>> reported_;
};

} // namespace huebase
