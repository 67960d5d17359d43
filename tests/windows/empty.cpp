// A library that exports one function and does nothing, but brings the runtime that exceptions and
// threads need, and has it set up.
#include <thread>

extern "C" __declspec(dllexport) int doNothing(int value);

extern "C" int doNothing(int value)
{
    try {
        throw std::this_thread::get_id() == std::thread::id() ? 0 : value;
    } catch (int caught) {
        return caught;
    }
}
