#include "serial_endpoint.h"

#include "asio_endpoint.h"
#include "descriptor_linux.h"
#include "q7_impressora.h"

#include <asio/serial_port.hpp>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <strings.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace q7
{
namespace
{

namespace fs = std::filesystem;

/** The entry of a folder with this name, in whatever letter case; empty when there is none. An
 *  exact match wins. */
fs::path entryIgnoringCase(const fs::path& folder, const fs::path& name)
{
    std::error_code error;
    if (fs::exists(folder / name, error))
        return name;
    // The standard library's own iterator ends the process where memory has run out.
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), ::closedir);
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr)
        if (::strcasecmp(entry->d_name, name.c_str()) == 0)
            return entry->d_name;
    return {};
}

// Device names know letter case here, the caller's text has lost it.
fs::path resolvePortName(const fs::path& name)
{
    fs::path path = name.is_absolute() ? "/" : "/dev";
    const fs::path components = name.relative_path();
    if (components.empty())
        return {};
    for (const fs::path& component : components) {
        const fs::path entry = entryIgnoringCase(path, component);
        if (entry.empty())
            return {};
        path /= entry;
    }
    return path;
}

int codeOf(int error)
{
    switch (error) {
    case EACCES:
    case EPERM:
    case EBUSY:
    case EWOULDBLOCK: // another program's lock
        return Q7_ERR_SERIAL_DENIED;
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return Q7_ERR_SERIAL_NOT_FOUND;
    case EIO:
    case EINVAL:
        return Q7_ERR_FAILED;
    default:
        return Q7_ERR_SERIAL_UNKNOWN;
    }
}

/** Returns 0 or the system's error number. */
int setUp(int descriptor, int bitsPerSecond)
{
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 || ::ioctl(descriptor, TIOCEXCL) != 0)
        return errno;
    termios settings = {};
    if (::tcgetattr(descriptor, &settings) != 0)
        return errno;
    ::cfmakeraw(&settings); // 8 data bits, no parity
    settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB | CRTSCTS);
    settings.c_cflag |= CREAD | CLOCAL;
    std::error_code error;
    asio::serial_port_base::baud_rate(static_cast<unsigned>(bitsPerSecond)).store(settings, error);
    if (error)
        return error.value();
    if (::tcsetattr(descriptor, TCSANOW, &settings) != 0)
        return errno;
    const int on = TIOCM_DTR | TIOCM_RTS;
    ::ioctl(descriptor, TIOCMBIS, &on); // a pseudo-terminal has no such lines
    return 0;
}

class SerialEndpoint : public AsioEndpoint<asio::serial_port>
{
public:
    using AsioEndpoint::AsioEndpoint;

    std::optional<std::size_t> bytesInSystem() override
    {
        int bytes = 0;
        if (::ioctl(m_stream.native_handle(), TIOCOUTQ, &bytes) != 0)
            return std::nullopt;
        return static_cast<std::size_t>(bytes);
    }

    // A pseudo-terminal tells that it takes more only when almost all that it held is gone.
    void renewWrite() override { cancelWrite(); }

    std::error_code close() override
    {
        ::ioctl(m_stream.native_handle(), TIOCNXCL);
        return AsioEndpoint::close();
    }
};

} // namespace

SerialOpened openSerial(asio::io_context& context, const QString& name, int bitsPerSecond)
{
    const fs::path path = resolvePortName(name.toStdString());
    if (path.empty())
        return {nullptr, Q7_ERR_SERIAL_NOT_FOUND};
    OwnedDescriptor descriptor(
        aboveStandard(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)));
    if (!descriptor.isOpen())
        return {nullptr, codeOf(errno)};
    asio::serial_port port(context);
    if (const int refusal = setUp(descriptor.get(), bitsPerSecond))
        return {nullptr, codeOf(refusal)};
    if (descriptor.handTo([&](int given, std::error_code& error) { port.assign(given, error); }))
        return {nullptr, Q7_ERR_FAILED};
    return {std::make_unique<SerialEndpoint>(std::move(port)), Q7_OK};
}

} // namespace q7
