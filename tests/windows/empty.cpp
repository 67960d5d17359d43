// A library that exports one function and does nothing, but brings the runtime that exceptions need.
extern "C" __declspec(dllexport) int doNothing(int value);

extern "C" int doNothing(int value)
{
    try {
        throw value;
    } catch (int caught) {
        return caught;
    }
}
