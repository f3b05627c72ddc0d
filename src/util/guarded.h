#pragma once

#include "util/guarded_application.h"

#include <exception>
#include <utility>

namespace huebase {

// Runs code that Qt calls on the program's behalf (a slot, an input handler,
// an event filter). A failure is reported by GuardedApplication and stops
// here: it never unwinds through Qt's own code, which is built without
// exception support and would skip its clean-up.
template <typename Action>
void guard(const QObject* context, Action&& action, Reporting reporting = Reporting::EveryTime) {
    try {
        std::forward<Action>(action)();
    } catch (...) {
        GuardedApplication::reportFailure(context, std::current_exception(), reporting);
    }
}

template <typename Functor, typename Signature> class GuardedSlot;

// A functor with the signature of the one it wraps, so that connect sees the
// same arguments, running it inside guard().
template <typename Functor, typename Result, typename Class, typename... Args>
class GuardedSlot<Functor, Result (Class::*)(Args...) const> {
public:
    GuardedSlot(const QObject* context, Functor functor, Reporting reporting)
        : context_(context), functor_(std::move(functor)), reporting_(reporting) {}

    void operator()(Args... args) const {
        guard(
            context_, [&] { functor_(std::forward<Args>(args)...); }, reporting_);
    }

private:
    const QObject* context_;
    Functor functor_;
    Reporting reporting_;
};

// The slot to connect in place of `functor`: connect(sender, signal,
// context, guarded(context, [..](..) { .. })).
template <typename Functor>
auto guarded(const QObject* context, Functor functor, Reporting reporting = Reporting::EveryTime) {
    return GuardedSlot<Functor, decltype(&Functor::operator())>(context, std::move(functor),
                                                                reporting);
}

// The same for a member function of the context.
template <typename Class, typename Result, typename... Args>
auto guarded(Class* object, Result (Class::*method)(Args...),
             Reporting reporting = Reporting::EveryTime) {
    return guarded(
        object, [object, method](Args... args) { (object->*method)(std::forward<Args>(args)...); },
        reporting);
}

} // namespace huebase
