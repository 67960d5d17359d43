#include "guest.h"

#include <windows.h>

#include <algorithm>
#include <new>
#include <vector>

// The system's own threads and locks: those of the compiler's runtime keep handles for each thread
// of the host's that they meet, and nobody closes these when the library goes.

namespace q7
{

struct OwnThread::Thread {
    HANDLE handle;
    Function interrupt;
};

namespace
{

/** Unloading runs static destructors under the loader's lock, which a thread's end needs too:
 *  waiting for a thread there would never end. So each thread holds the library itself. */
HMODULE holdLibrary()
{
    HMODULE self = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                         reinterpret_cast<const wchar_t*>(&holdLibrary), &self);
    return self;
}

/** Whether the system has ended all threads but this one. */
bool processIsEnding()
{
    // In no header.
    const auto query = reinterpret_cast<BOOLEAN(WINAPI*)()>(reinterpret_cast<void (*)()>(
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress")));
    return query != nullptr && query() != FALSE;
}

/** A lock and what it protects: the handles of threads that are stopped by nobody any more when the
 *  host frees the library while they end. */
class Guest
{
public:
    Guest() { ::InitializeCriticalSection(&m_turn); }
    ~Guest()
    {
        for (const HANDLE handle : m_handles)
            ::CloseHandle(handle);
        // Programs may call from destructors that run later at the process's end.
        if (!processIsEnding())
            ::DeleteCriticalSection(&m_turn);
    }
    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;

    void enter() { ::EnterCriticalSection(&m_turn); }
    void leave() { ::LeaveCriticalSection(&m_turn); }
    /** So that adding cannot fail. */
    void makeRoom() { m_handles.reserve(m_handles.size() + 1); }
    void add(HANDLE handle) { m_handles.push_back(handle); }
    void close(HANDLE handle)
    {
        m_handles.erase(std::remove(m_handles.begin(), m_handles.end(), handle), m_handles.end());
        ::CloseHandle(handle);
    }

private:
    CRITICAL_SECTION m_turn;
    std::vector<HANDLE> m_handles;
};

Guest& guest()
{
    static Guest theGuest;
    return theGuest;
}

struct Start {
    OwnThread::Function work;
    HMODULE library;
};

DWORD WINAPI run(void* argument)
{
    auto* start = static_cast<Start*>(argument);
    const HMODULE library = start->library;
    try {
        start->work();
    } catch (...) {
        // No memory: the next call does what was left.
    }
    delete start;
    ::FreeLibraryAndExitThread(library, 0);
}

} // namespace

OwnThread::OwnThread(Function work, Function interrupt)
    : m_thread(new Thread{nullptr, std::move(interrupt)})
{
    auto start = std::make_unique<Start>(Start{std::move(work), nullptr});
    guest().makeRoom();
    start->library = holdLibrary();
    m_thread->handle = ::CreateThread(nullptr, 0, run, start.get(), 0, nullptr);
    if (m_thread->handle == nullptr) {
        ::FreeLibrary(start->library);
        throw std::bad_alloc();
    }
    static_cast<void>(start.release()); // the thread's now
    guest().add(m_thread->handle);
}

OwnThread::~OwnThread()
{
    stop();
}

bool OwnThread::stop()
{
    if (!m_thread)
        return true;
    if (processIsEnding()) {
        static_cast<void>(m_thread.release()); // ended wherever it stood
        return false;
    }
    m_thread->interrupt();
    ::WaitForSingleObject(m_thread->handle, INFINITE);
    leaveBehind();
    return true;
}

void OwnThread::leaveBehind()
{
    guest().close(m_thread->handle);
    m_thread.reset();
}

Turn::Turn()
{
    guest().enter();
}

Turn::~Turn()
{
    guest().leave();
}

unsigned forkCount()
{
    return 0;
}

} // namespace q7
