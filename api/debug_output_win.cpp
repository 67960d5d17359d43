#include "debug_output.h"

#include <windows.h>

namespace q7
{

void writeDebugOutput(const QString& text)
{
    ::OutputDebugStringW(reinterpret_cast<const wchar_t*>(text.utf16()));
}

} // namespace q7
