#include "usb_device.h"

#include <QDeadlineTimer>

#include <windows.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <utility>

namespace q7
{
namespace
{

constexpr DWORD readLimit = usbReplyLimit;
constexpr DWORD emptyReadPauseMs = 5;
// How long an operation may take to end after it was cancelled.
constexpr DWORD cancelGraceMs = 100;

HANDLE openForReadingAndWriting(const QString& path)
{
    return ::CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()),
                         GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                         OPEN_EXISTING, 0, nullptr);
}

/** Ends the calling thread's blocking operation when it takes too long: the printer driver of
 *  Windows knows no time-outs and would block for as long as the printer is out of paper. */
class CancelAfter
{
public:
    explicit CancelAfter(DWORD timeoutMs)
    {
        if (::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(),
                              &m_thread, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0)
            return;
        ::CreateTimerQueueTimer(&m_timer, nullptr, cancel, this, timeoutMs, retryMs,
                                WT_EXECUTEDEFAULT);
    }
    ~CancelAfter() { stop(); }
    CancelAfter(const CancelAfter&) = delete;
    CancelAfter& operator=(const CancelAfter&) = delete;

    /** Returns whether the time was up. Nothing is cancelled any more afterwards. */
    bool stop()
    {
        // Waits for a callback that runs: it must not cancel what this thread does next.
        if (m_timer != nullptr)
            ::DeleteTimerQueueTimer(nullptr, m_timer, INVALID_HANDLE_VALUE);
        if (m_thread != nullptr)
            ::CloseHandle(m_thread);
        m_timer = nullptr;
        m_thread = nullptr;
        return m_timeIsUp;
    }

private:
    // Again and again, since the time may be up between two operations of the thread.
    static constexpr DWORD retryMs = 50;

    static void CALLBACK cancel(void* self, BOOLEAN /*fired*/)
    {
        auto* guard = static_cast<CancelAfter*>(self);
        guard->m_timeIsUp = true;
        ::CancelSynchronousIo(guard->m_thread);
    }

    HANDLE m_thread = nullptr;
    HANDLE m_timer = nullptr;
    std::atomic<bool> m_timeIsUp{false};
};

/** One read on a thread of its own, which may outlive everything else here: a driver that neither
 *  knows time-outs nor lets go of a cancelled read keeps it until the printer says something. The
 *  thread holds its own reference to this library, so that a host may unload it meanwhile. */
class PendingRead
{
public:
    /** Null when the system has no thread to give. */
    static std::shared_ptr<PendingRead> start(HANDLE device, DWORD timeoutMs)
    {
        HMODULE library = nullptr;
        if (::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                                 reinterpret_cast<const wchar_t*>(&run), &library) == 0)
            return nullptr;
        auto read = std::make_shared<PendingRead>(device, timeoutMs, library);
        auto threadsShare = std::make_unique<std::shared_ptr<PendingRead>>(read);
        read->m_thread = ::CreateThread(nullptr, 0, run, threadsShare.get(), 0, nullptr);
        if (read->m_thread == nullptr) {
            ::FreeLibrary(library);
            return nullptr;
        }
        static_cast<void>(threadsShare.release()); // the thread's now
        return read;
    }

    PendingRead(HANDLE device, DWORD timeoutMs, HMODULE library)
        : m_device(device), m_deadline(timeoutMs), m_library(library)
    {
    }
    ~PendingRead()
    {
        if (m_thread != nullptr)
            ::CloseHandle(m_thread);
        if (m_ownsDevice)
            ::CloseHandle(m_device);
    }
    PendingRead(const PendingRead&) = delete;
    PendingRead& operator=(const PendingRead&) = delete;

    bool endsWithin(DWORD timeoutMs) const
    {
        return ::WaitForSingleObject(m_thread, timeoutMs) == WAIT_OBJECT_0;
    }

    /** Asks the read to end; it does unless its driver holds it. */
    void cancel()
    {
        m_cancelled = true;
        ::CancelSynchronousIo(m_thread);
    }

    /** Makes the device the read's own, to be closed with it. Returns its handle. */
    HANDLE takeDevice()
    {
        m_ownsDevice = true;
        return m_device;
    }

    /** What came; asked after the end. */
    QByteArray bytes() const { return {m_bytes.data(), static_cast<int>(m_count)}; }

private:
    static DWORD WINAPI run(void* share)
    {
        auto* threadsShare = static_cast<std::shared_ptr<PendingRead>*>(share);
        const HMODULE library = (*threadsShare)->m_library;
        (*threadsShare)->readOnce();
        delete threadsShare;
        ::FreeLibraryAndExitThread(library, 0);
    }

    // A printer with nothing to say answers with an empty packet: it is asked again until it has
    // something, the time is up or the device fails.
    void readOnce()
    {
        while (!m_cancelled && !m_deadline.hasExpired()) {
            // Ends at the first gap between bytes, or at the deadline. A driver that knows no
            // time-outs refuses them and reads all the same.
            COMMTIMEOUTS timeouts = {};
            timeouts.ReadIntervalTimeout = 1;
            timeouts.ReadTotalTimeoutConstant =
                static_cast<DWORD>(std::max<qint64>(m_deadline.remainingTime(), 1));
            ::SetCommTimeouts(m_device, &timeouts);
            if (::ReadFile(m_device, m_bytes.data(), readLimit, &m_count, nullptr) == 0 ||
                m_count > 0)
                return;
            ::Sleep(emptyReadPauseMs);
        }
    }

    const HANDLE m_device;
    const QDeadlineTimer m_deadline;
    const HMODULE m_library;
    HANDLE m_thread = nullptr;
    bool m_ownsDevice = false;
    std::atomic<bool> m_cancelled{false};
    std::array<char, readLimit> m_bytes = {};
    DWORD m_count = 0;
};

class UsbPrintDevice : public UsbDevice
{
public:
    UsbPrintDevice(QString path, HANDLE handle) : m_path(std::move(path)), m_handle(handle) {}
    ~UsbPrintDevice() override { UsbPrintDevice::close(); }
    UsbPrintDevice(const UsbPrintDevice&) = delete;
    UsbPrintDevice& operator=(const UsbPrintDevice&) = delete;

    Written write(const QByteArray& bytes, int timeoutMs) override
    {
        if (!reopenWhenLost())
            return {lastError(), 0};
        constexpr int perByteMs = 2;
        COMMTIMEOUTS timeouts = {};
        timeouts.ReadIntervalTimeout = 250;
        timeouts.ReadTotalTimeoutMultiplier = 2;
        timeouts.ReadTotalTimeoutConstant = 1000;
        timeouts.WriteTotalTimeoutMultiplier = perByteMs;
        timeouts.WriteTotalTimeoutConstant =
            static_cast<DWORD>(std::max(timeoutMs - perByteMs * bytes.size(), 1));
        ::SetCommTimeouts(m_handle, &timeouts);

        CancelAfter guard(static_cast<DWORD>(timeoutMs));
        DWORD count = 0;
        const bool written = ::WriteFile(m_handle, bytes.constData(),
                                         static_cast<DWORD>(bytes.size()), &count, nullptr) != 0;
        const int error = written ? 0 : lastError();
        ::FlushFileBuffers(m_handle);
        const bool wasCancelled = guard.stop() && error == ERROR_OPERATION_ABORTED;
        return {wasCancelled ? 0 : error, static_cast<int>(count)};
    }

    QByteArray read(int timeoutMs) override
    {
        const auto limit = static_cast<DWORD>(std::max(timeoutMs, 0));
        // A read that is still under way is the one that will get the next bytes.
        if (!m_read && reopenWhenLost())
            m_read = PendingRead::start(m_handle, limit);
        if (!m_read)
            return {};
        if (!m_read->endsWithin(limit)) {
            m_read->cancel();
            if (!m_read->endsWithin(cancelGraceMs)) {
                loseHandle();
                return {};
            }
        }
        return std::exchange(m_read, nullptr)->bytes();
    }

    int close() override
    {
        if (m_handle != INVALID_HANDLE_VALUE && ::CloseHandle(m_handle) == 0)
            return lastError();
        m_handle = INVALID_HANDLE_VALUE;
        m_read.reset();
        return 0;
    }

private:
    static int lastError() { return static_cast<int>(::GetLastError()); }

    // The system lets operations on one handle wait for each other: a write would wait behind a
    // read that does not end. The read keeps the handle, the next operation opens another.
    void loseHandle()
    {
        if (m_read->takeDevice() == m_handle)
            m_handle = INVALID_HANDLE_VALUE;
    }

    bool reopenWhenLost()
    {
        if (m_handle == INVALID_HANDLE_VALUE)
            m_handle = openForReadingAndWriting(m_path);
        return m_handle != INVALID_HANDLE_VALUE;
    }

    const QString m_path;
    HANDLE m_handle;
    std::shared_ptr<PendingRead> m_read; // null while none is under way
};

} // namespace

UsbOpened openUsbDevice(const QString& path)
{
    const HANDLE handle = openForReadingAndWriting(path);
    if (handle == INVALID_HANDLE_VALUE)
        return {nullptr, static_cast<int>(::GetLastError())};
    return {std::make_unique<UsbPrintDevice>(path, handle), 0};
}

} // namespace q7
