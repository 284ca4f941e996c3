#pragma once

#include "valueobservingptr.h"

#include <values/valuebase.h>

#include <cmath>
#include <limits>

namespace JEDVEPLUGIN {
namespace ScriptableAccess {

/// What a script calls must not throw: the exception would end the process inside the script engine.
template <class Action>
void guarded(const Action& action)
{
    try {
        action();
    } catch (...) {
        // Observers threw; the script goes on.
    }
}

/// Without the fraction. Beyond the type's range the nearest integer, 0 for NaN.
template <class Integer>
Integer truncated(double number)
{
    using Limits = std::numeric_limits<Integer>;
    const double beyond = std::ldexp(1.0, Limits::digits); // the first number above the range, exactly
    if (std::isnan(number))
        return 0;
    if (number >= beyond)
        return Limits::max();
    if (number <= -beyond)
        return Limits::min();
    return static_cast<Integer>(number);
}

/// Attaches what the value tree holds under the path of \p value, which itself may stand elsewhere.
/// \return the path, empty if \p value is null or has none
template <class T>
QString attachByPath(const T* value, ValueObservingPtr<T>* holder)
{
    const QString path = value ? value->GetPathName() : QString();
    if (!path.isEmpty())
        holder->SetByPath(path);
    return path;
}

/// What SetValueTreePath() of the classes shares.
/// \param keepsObserving  whether \p observer goes on to hear of the value's changes
/// \return false if there is no value
template <class T>
bool registerUnder(const QString& path, const ValueObservingPtr<T>& value, IObserver* observer,
                   bool keepsObserving = true)
{
    if (!value)
        return false;
    guarded([&] {
        value->DeleteObserver(observer);
        Tree::Instance()->RegisterValue(value.Get(), path);
    });
    if (keepsObserving && value)
        value->AddObserver(observer);
    return true;
}

template <class T>
bool isStateNormal(const ValueObservingPtr<T>& value)
{
    return value && value->GetState() == STATE_NORMAL;
}

template <class T>
void setStateNormal(const ValueObservingPtr<T>& value, bool isNormal)
{
    if (value)
        guarded([&] { value->SetState(isNormal ? STATE_NORMAL : STATE_NOT_NORMAL, nullptr); });
}

} // namespace ScriptableAccess
} // namespace JEDVEPLUGIN
