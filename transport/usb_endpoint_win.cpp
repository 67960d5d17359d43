#include "usb_endpoint.h"

#include "asio_endpoint.h"

#include <asio/windows/stream_handle.hpp>

namespace q7
{
namespace
{

class UsbPrintEndpoint : public AsioEndpoint<asio::windows::stream_handle>
{
public:
    using AsioEndpoint::AsioEndpoint;

    // The driver ends a write once the printer has taken its bytes.
    std::optional<std::size_t> bytesInSystem() override { return 0; }
};

} // namespace

// The printer driver of Windows knows no time-outs and would block for as long as the printer is out
// of paper: so all its reads and writes are overlapped ones, which can be ended.
UsbOpened openUsb(asio::io_context& context, const QString& path)
{
    const HANDLE handle = ::CreateFileW(path.toStdWString().c_str(), GENERIC_READ | GENERIC_WRITE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_OVERLAPPED, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {nullptr, static_cast<int>(::GetLastError())};
    // A read ends at the first gap where the driver knows time-outs; else it does so anyway.
    COMMTIMEOUTS timeouts = {};
    timeouts.ReadIntervalTimeout = 1;
    ::SetCommTimeouts(handle, &timeouts);
    asio::windows::stream_handle device(context);
    std::error_code error;
    device.assign(handle, error);
    if (error) {
        ::CloseHandle(handle);
        return {nullptr, error.value()};
    }
    return {std::make_unique<UsbPrintEndpoint>(std::move(device)), 0};
}

} // namespace q7
