// Qt devices that belong to no thread.
#pragma once

#include <QObject>
#include <memory>

namespace q7
{

/** Takes an object out of the thread that made it. Its connections to itself go: without a thread
 *  each of their signals would wait in a queue that nobody empties. */
inline void leaveThread(QObject& object)
{
    QObject::disconnect(&object, nullptr, &object, nullptr);
    object.moveToThread(nullptr);
}

/** Makes a Qt object without thread affinity. Such an object has no event dispatcher: it registers
 *  no notifiers and no timers with the host program's event loop, prints no warnings in a program
 *  that has none, and any one thread at a time may use it. Its waitFor functions do all the work. */
template <typename Object> std::unique_ptr<Object> makeThreadFree()
{
    auto object = std::make_unique<Object>();
    leaveThread(*object);
    return object;
}

} // namespace q7
