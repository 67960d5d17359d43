// Objects that outlive all static ones: exports may be called from destructors of the program's.
#pragma once

#include <new>

namespace q7
{

/** Never destroyed, yet no memory of the heap's: its room goes when the library is unloaded. */
template <typename Object> class Everlasting
{
public:
    Everlasting() { new (m_room) Object; }
    Everlasting(const Everlasting&) = delete;
    Everlasting& operator=(const Everlasting&) = delete;

    Object& operator*() { return *std::launder(reinterpret_cast<Object*>(m_room)); }

private:
    alignas(Object) unsigned char m_room[sizeof(Object)];
};

} // namespace q7
