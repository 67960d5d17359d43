#include "serial_endpoint.h"

#include "asio_endpoint.h"
#include "q7_impressora.h"

#include <asio/serial_port.hpp>

namespace q7
{
namespace
{

int codeOf(DWORD error)
{
    switch (error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
        return Q7_ERR_SERIAL_DENIED;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DEV_NOT_EXIST:
        return Q7_ERR_SERIAL_NOT_FOUND;
    case ERROR_IO_DEVICE:
    case ERROR_NOT_ENOUGH_MEMORY:
        return Q7_ERR_FAILED;
    default:
        return Q7_ERR_SERIAL_UNKNOWN;
    }
}

// All at once: a printer may take a line that goes off and on again for a reset.
bool setUp(HANDLE handle, int bitsPerSecond)
{
    DCB settings = {};
    settings.DCBlength = sizeof settings;
    if (::GetCommState(handle, &settings) == 0)
        return false;
    settings.BaudRate = static_cast<DWORD>(bitsPerSecond);
    settings.fBinary = TRUE;
    settings.ByteSize = 8;
    settings.fParity = FALSE;
    settings.Parity = NOPARITY;
    settings.StopBits = ONESTOPBIT;
    settings.fOutxCtsFlow = FALSE;
    settings.fOutxDsrFlow = FALSE;
    settings.fDsrSensitivity = FALSE;
    settings.fOutX = FALSE;
    settings.fInX = FALSE;
    settings.fErrorChar = FALSE;
    settings.fNull = FALSE;
    settings.fAbortOnError = FALSE;
    settings.fDtrControl = DTR_CONTROL_ENABLE;
    settings.fRtsControl = RTS_CONTROL_ENABLE;
    if (::SetCommState(handle, &settings) == 0)
        return false;
    // A read waits for its first byte and ends at the first gap behind it; a write has no limit.
    COMMTIMEOUTS timeouts = {};
    timeouts.ReadIntervalTimeout = 1;
    return ::SetCommTimeouts(handle, &timeouts) != 0;
}

class SerialEndpoint : public AsioEndpoint<asio::serial_port>
{
public:
    using AsioEndpoint::AsioEndpoint;

    std::optional<std::size_t> bytesInSystem() override
    {
        DWORD errors = 0;
        COMSTAT status = {};
        if (::ClearCommError(m_stream.native_handle(), &errors, &status) == 0)
            return std::nullopt;
        return status.cbOutQue;
    }
};

} // namespace

SerialOpened openSerial(asio::io_context& context, const QString& name, int bitsPerSecond)
{
    const std::wstring path = L"\\\\.\\" + name.toStdWString();
    const HANDLE handle = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {nullptr, codeOf(::GetLastError())};
    int result = setUp(handle, bitsPerSecond) ? int{Q7_OK} : codeOf(::GetLastError());
    asio::serial_port port(context);
    std::error_code error;
    if (result == Q7_OK)
        port.assign(handle, error);
    if (error)
        result = Q7_ERR_FAILED;
    if (result != Q7_OK) {
        ::CloseHandle(handle);
        return {nullptr, result};
    }
    return {std::make_unique<SerialEndpoint>(std::move(port)), Q7_OK};
}

} // namespace q7
