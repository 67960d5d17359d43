// The far end of a link, as an open handle of the system: what differs between a TCP socket, a
// serial port and a USB printer once they are open.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <system_error>

namespace q7
{

/** Told when an operation that was started has ended: why, if it failed, and how many bytes it
 *  moved, also where it failed or was cancelled. */
using IoHandler = std::function<void(std::error_code, std::size_t)>;

/** At most one read and one write are under way at a time. Their buffers stay where they are until
 *  the handler has run, which happens within the io_context that the endpoint was opened in. */
class Endpoint
{
public:
    virtual ~Endpoint() = default;

    /** Writes what the system takes at once and returns how much that was. Only sockets can tell
     *  without a write being started; for all others it is 0. */
    virtual std::size_t writeNow(std::string_view /*bytes*/, std::error_code& /*error*/)
    {
        return 0;
    }

    /** Starts to write. The handler may be told of a part of the bytes. */
    virtual void startWrite(std::string_view bytes, IoHandler handler) = 0;
    /** Asks the write under way to end. The handler runs all the same, unless the driver never lets
     *  go of it. */
    virtual void cancelWrite() = 0;
    /** Ends the write under way, if starting it again may show progress that the system has not told
     *  yet. */
    virtual void renewWrite() {}
    virtual void startRead(char* buffer, std::size_t size, IoHandler handler) = 0;
    virtual void cancelAll() = 0;

    /** Bytes that the system took and that have not reached the printer yet, 0 where it does not
     *  tell. Nothing when it says that the device is gone. */
    virtual std::optional<std::size_t> bytesInSystem() = 0;

    /** Called before each wait for a reply or more of it. */
    virtual void askForMore() {}
    /** Tells the printer that nothing more will come; reading goes on. */
    virtual void endSending() {}

    virtual std::error_code close() = 0;
};

} // namespace q7
